#include "unit/selection/selection_window_fixture.h"

struct SelectionLeaving : SelectionFixture {
    std::wstring& listFile() { return machine.files.texts[machine.programFiles.list]; }
    std::wstring previousList() { return machine.files.texts[machine.programFiles.previousList()]; }
    /// What is saved of the window's place, which is 450, -75.
    std::wstring savedPlace() {
        const auto saved = [&](const wchar_t* key) {
            return machine.settings.read(L"tarnwick", L"startup", key, L"");
        };
        return saved(L"toppos") + L' ' + saved(L"leftpos");
    }
};

TEST_F(SelectionLeaving, LaunchingWritesTheChosenDocumentsThenHandsOver) {
    load();
    window().leaveAt(-5, 30);
    toggle({1});
    listFile() = L"12  c:\\d'avant\r\n";
    leaveTypes();  // a click in the field, and then on the button
    exits.whenTaken = [&] {
        EXPECT_EQ(savedPlace(), L"450 -75");
        EXPECT_EQ(listFile(), L"0  c:\\plans\\Zoe.SLDDRW\r\n");
        EXPECT_EQ(previousList(), L"12  c:\\d'avant\r\n");
        EXPECT_EQ(window().state, FakeWindow::State::Shown);
    };
    click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(exits.taken.back(), L"launchPass");
    EXPECT_EQ(window().state, FakeWindow::State::Hidden);
    machine.files.add({L"c:\\plans\\\xD83D.SLDDRW"});
    type(L"*.SLDDRW");
    click(IDC_FORM1_CMD_INV);
    const RuntimeError error = raisedError([&] { click(IDC_FORM1_CMD_TRACER); });
    EXPECT_TRUE(error.text.ends_with(L"Document : c:\\plans\\\xD83D.SLDDRW"));
}

TEST_F(SelectionLeaving, ALaunchKeepsTheOldListWithItsMarksOrChangesNothing) {
    load();
    auto& files = machine.files.texts;
    const std::wstring list = machine.programFiles.list;
    const std::wstring previous = machine.programFiles.previousList();
    const std::wstring marks = L"c:\\tarnwick\\tarnwick.reprise";
    const std::wstring previousMarks = L"c:\\tarnwick\\tarnwick-precedente.reprise";
    files[list] = L"12  c:\\d'avant\r\n";
    files[marks] = L"marques";
    files[previous] = L"0  c:\\plus vieux\r\n";
    files[previousMarks] = L"plus vieilles";
    const auto before = files;
    // Looked for, or changed, each in vain once or for good.
    for (const std::wstring& file : {list, previous, previousMarks}) {
        for (int wellFor = 0; wellFor < 3; ++wellFor) {
            machine.files.wellFor = wellFor;
            machine.files.failing = {{file, 1}};
            const int error = raised([&] { click(IDC_FORM1_CMD_TRACER); });
            EXPECT_EQ(error, machine.files.failing[file] == 0 ? 75 : 0) << wellFor;
            EXPECT_TRUE(error == 0 || files == before) << wellFor;
            files = before;
        }
    }
    machine.files.failing.clear();
    exits.taken = {L"none"};
    machine.listHolds.others[previous] = {L"Zoé", L"PC-12"};
    click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(files, before);
    EXPECT_TRUE(has(machine.boxes.shown.back().text, L"par Zoé sur PC-12"));
    EXPECT_EQ(exits.taken.back(), L"none");

    machine.listHolds.others.clear();
    for (int nothingChosen = 0; nothingChosen < 2; ++nothingChosen) {
        click(IDC_FORM1_CMD_TRACER);
        EXPECT_EQ(listFile(), L"");
        EXPECT_EQ(previousList(), before.at(list));
        EXPECT_EQ(files[previousMarks], L"marques");
        EXPECT_FALSE(files.contains(marks));
    }
    // A list without marks leaves none that are an older one's.
    listFile() = L"0  c:\\sans marques\r\n";
    files[marks] = L"";
    click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(previousList(), L"0  c:\\sans marques\r\n");
    EXPECT_FALSE(files.contains(previousMarks));
}

TEST_F(SelectionLeaving, TheListFileHoldsFullPaths) {
    const std::tuple<const wchar_t*, bool, const wchar_t*> cases[] = {
        {L"c:\\plans\\moteur", true, L"0  c:\\plans\\moteur\\bielle.SLDDRW\r\n"},
        {L"d:\\", false, L"0  d:\\\\b.SLDDRW\r\n"},
        {L"d:\\", true, L"0  d:\\\\b.SLDDRW\r\n0  d:\\doc\\d.SLDDRW\r\n"},
    };
    for (const auto& [directory, withSubdirectories, written] : cases) {
        load(directory);
        machine.boxes.answers = {MessageBoxes::Answer::Yes, MessageBoxes::Answer::Yes};
        if (withSubdirectories) tick(true);
        click(IDC_FORM1_CMDPLUS);
        click(IDC_FORM1_CMD_INV);
        click(IDC_FORM1_CMD_TRACER);
        EXPECT_EQ(listFile(), written);
    }
}

TEST_F(SelectionLeaving, OnlySortieSavesTheWindowsPlace) {
    load();
    window().leaveAt(-5, 30);
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_THROW(click(IDC_FORM1_CMD_ANNULER), ProgramEnd);
    EXPECT_EQ(window().state, FakeWindow::State::Unloaded);
    EXPECT_TRUE(machine.settings.entries.empty());
    EXPECT_THROW(click(IDC_FORM1_CMD_SORTIE), ProgramEnd);
    EXPECT_EQ(savedPlace(), L"450 -75");
    EXPECT_FALSE(machine.files.texts.contains(machine.programFiles.list));
}
