#include "unit/tracking/tracking_window_fixture.h"

#include "common/utf8.h"

TrackingFixture::TrackingFixture() {
    machine.automation.revision = L"12.0.1";
    machine.leaveWindowAt(L"toppos3", L"leftpos3", 300, -600);
    // No rebuild: the cases that are about it tick the boxes.
    machine.settings.write(L"tarnwick", L"startup", L"regcheck", L"1100");
}

void TrackingFixture::load(const std::wstring& text, TrackingWindow::Origin origin) {
    listFile() = text;
    machine.records.contents.clear();
    start(origin);
}

void TrackingFixture::start(TrackingWindow::Origin origin) {
    session.emplace(machine.desktop);
    session->attach(machine.automation);
    session->identify();
    takeCalls();
    form = std::make_unique<TrackingWindow>(machine.platform, machine.places, *session,
                                            machine.programFiles);
    form->Form_Load(origin);
}

void TrackingFixture::loadStates(const std::wstring& codes) {
    std::wstring text;
    wchar_t name = L'a';
    for (const wchar_t code : codes) {
        text += {code, L' ', L' ', L'c', L':', L'\\', name++, L'\r', L'\n'};
    }
    load(text);
    takeCalls();
}

std::wstring TrackingFixture::shown() {
    return text(IDC_FORM3_NUMFICHCOUR) + L": " + text(IDC_FORM3_NBFICH1) + L'/' +
           text(IDC_FORM3_CPTFICHIER1) + L' ' + text(IDC_FORM3_TXTETAT);
}

std::wstring TrackingFixture::states() {
    std::wstring result;
    for (int i = 0; i <= work().last; ++i) {
        result += (i == 0 ? L"" : L" ") + wideText(work().lines[i].code);
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
