#include "unit/selection/selection_window_fixture.h"

SelectionFixture::SelectionFixture() {
    for (const wchar_t* path :
         {L"c:\\a.SLDDRW", L"c:\\plans\\axe.slddrw", L"c:\\plans\\Bras.SLDPRT",
          L"c:\\plans\\corps.SLDASM", L"c:\\plans\\Zoe.SLDDRW", L"c:\\plans\\moteur\\bielle.SLDDRW",
          L"c:\\plans\\moteur\\piston.SLDPRT", L"d:\\b.SLDDRW", L"d:\\doc\\d.SLDDRW"}) {
        machine.files.add(path);
    }
    machine.files.presentDrives = {L'c', L'd'};
    machine.files.currentDirectories[L'd'] = L"d:\\doc";
    machine.leaveWindowAt(L"toppos", L"leftpos", 300, -600);
}

void SelectionFixture::load(const std::wstring& workingDirectory) {
    machine.automation.workingDirectory = workingDirectory;
    cad.attach(machine.automation);
    cad.identify();
    form = std::make_unique<SelectionWindow>(machine.platform, machine.places, cad,
                                             machine.programFiles, exits);
    window().listBox(IDC_FORM1_REPERT).severalSelectable = false;
    form->Form_Load();
    window().show();
}

void SelectionFixture::type(const std::wstring& typed) {
    types().content = typed;
    window().sink.raise(IDC_FORM1_TYPEF, Event::Change);
}

void SelectionFixture::chooseType(int line) {
    types().selectLine(line);
    click(IDC_FORM1_TYPEF);
}

void SelectionFixture::chooseDrive(int line) {
    window().comboBox(IDC_FORM1_UNITE).selectLine(line);
    click(IDC_FORM1_UNITE);
}

void SelectionFixture::openDirectory(const std::wstring& name) {
    FakeListBox& tree = window().listBox(IDC_FORM1_REPERT);
    for (int i = 0; i < tree.count(); ++i) {
        const std::wstring line = tree.line(i);
        if (line.substr(line.find_first_not_of(L' ')) == name) tree.select(i, true);
    }
    window().sink.raise(IDC_FORM1_REPERT, Event::DoubleClick);
}

void SelectionFixture::tick(bool ticked) {
    window().checkBox(IDC_FORM1_SOUSREP).ticked = ticked;
    click(IDC_FORM1_SOUSREP);
}

void SelectionFixture::highlight(const std::vector<int>& lines) {
    list().clearSelection();
    for (const int line : lines) list().select(line, true);
}

SelectionFixture::Lines SelectionFixture::unchosen() {
    Lines result;
    for (const std::wstring& line : list().texts()) {
        EXPECT_EQ(line.substr(0, 14), std::wstring(14, L' '));
        result.push_back(line.substr(14));
    }
    return result;
}

std::wstring SelectionFixture::marks() {
    std::wstring result;
    for (const auto& line : list().lines) result += std::to_wstring(line.mark);
    return result;
}
