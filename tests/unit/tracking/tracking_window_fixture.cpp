#include "unit/tracking/tracking_window_fixture.h"

#include "common/utf8.h"

TrackingFixture::TrackingFixture() {
    module.labels = standardLabels();
    module.FichListe = L"c:\\tarnwick\\tarnwick.lst";
    module.NomVersionSw = L"SolidWorks 2004";
    module.place(PlacedWindow::Tracking) = {.top = 300, .left = -600};
    // No rebuild: the cases that are about it tick the boxes.
    machine.settings.write(L"tarnwick", L"startup", L"regcheck", L"1100");
}

void TrackingFixture::load(const std::wstring& listFile) {
    machine.files.texts[module.FichListe] = listFile;
    module.SwApp = machine.automation.attach(L"SldWorks.Application");
    takeCalls();
    form = std::make_unique<TrackingWindow>(module, machine.platform);
    form->Form_Load();
}

void TrackingFixture::loadStates(const std::wstring& codes) {
    std::wstring listFile;
    wchar_t name = L'a';
    for (const wchar_t code : codes) {
        listFile += {code, L' ', L' ', L'c', L':', L'\\', name++, L'\r', L'\n'};
    }
    load(listFile);
    takeCalls();
}

std::wstring TrackingFixture::states() {
    std::wstring result;
    for (int i = 0; i <= module.liste.DerFich; ++i) {
        result += (i == 0 ? L"" : L" ") + wideText(module.liste.EtatFich[i].code);
    }
    return result;
}

bool TrackingFixture::canAdvance() {
    return enabledAlike({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMDSUIVSAUTER,
                         IDC_FORM3_CMD1, IDC_FORM3_CMD2, IDC_FORM3_CMD3});
}

bool TrackingFixture::canStepBack() {
    return enabledAlike({IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4});
}

bool TrackingFixture::enabledAlike(const std::vector<int>& buttons) {
    const bool first = window().control(buttons.front()).enabled;
    for (const int button : buttons) EXPECT_EQ(window().control(button).enabled, first) << button;
    return first;
}
