#include "unit/tracking/tracking_window_fixture.h"

struct Options : TrackingFixture {
    /// What is kept of each.
    std::wstring options() {
        std::wstring kept;
        for (const wchar_t* key : {L"toujoursvisible", L"touches", L"premierplan"}) {
            kept += machine.settings.read(L"tarnwick", L"options", key, L"-");
        }
        return kept;
    }
};

TEST_F(Options, AreOffUntilChosenAndKeptAtOnce) {
    loadStates(L"00");
    EXPECT_EQ(options(), L"---");
    for (const std::size_t on : {3, 0}) {
        EXPECT_EQ(window().menuMarks.size(), 3 - on);
        clickAll({IDM_FORM3_TOUJOURSVISIBLE, IDM_FORM3_TOUCHES, IDM_FORM3_PREMIERPLAN});
        EXPECT_EQ(options(), on ? L"111" : L"000");
        for (const bool again : {false, true}) {
            if (again) start();
            EXPECT_EQ(window().menuMarks.size(), on);
            EXPECT_EQ(window().topmost, on != 0);
            EXPECT_EQ(window().hasHotKeys, on != 0);
        }
    }
    window().keysOfOthers = {L"Ctrl+Maj+2", L"Ctrl+Maj+4"};
    click(IDM_FORM3_TOUCHES);
    EXPECT_TRUE(has(machine.boxes.takeTexts().at(0), L"\r\nCtrl+Maj+2\r\nCtrl+Maj+4\r\n"));
    EXPECT_TRUE(window().menuMarks.empty());
    EXPECT_EQ(options(), L"000");
}

TEST_F(Options, AnyReleaseIsFoundByTheBeginningOfItsTitle) {
    switchOn(L"premierplan");
    machine.automation.revision = L"28.1";
    machine.desktop.windows = {{L"SOLIDWORKS", 2}, {L"SOLIDWORKS 2020 - [a.SLDPRT *]", 4}};
    load(L"0  c:\\a.SLDPRT\r\n0  c:\\b.SLDPRT\r\n");
    EXPECT_EQ(machine.desktop.broughtForward.back(), 4U);
    clickAll({IDM_FORM3_PREMIERPLAN, kSkip});
    EXPECT_EQ(machine.desktop.broughtForward.back(), 0U);
    EXPECT_EQ(machine.desktop.restored, std::vector<Desktop::WindowHandle>{4});
}

TEST_F(Options, ReportIsWrittenWhereTheUserWantsItOrThePassGoesOnWithoutIt) {
    load(L"0  c:\\a\r\n0  C:\\A\r\n");
    click(IDM_FORM3_RAPPORT);
    const SaveQuestion& asked = machine.fileDialogs.asked.back();
    EXPECT_EQ(asked.directory + L"|" + asked.name, L"c:\\tarnwick|tarnwick-rapport.csv");
    machine.clock.seconds += 2;
    command(kResume, {1});  // the same document, which stays open
    machine.clock.seconds += 5;
    EXPECT_TRUE(has(report(), L"\r\n1;A faire;c:\\a;;2;;\r\n2;En cours;C:\\A;;5;;\r\n"));
    EXPECT_EQ(machine.boxes.takeTexts(), Texts());

    const std::wstring before = listFile();
    machine.files.failing[L"c:\\r.csv"] = 1;
    for (const wchar_t* path : {L"c:\\r.csv", L"C:\\Tarnwick\\TARNWICK.LST"}) {
        machine.fileDialogs.answer = path;
        click(IDM_FORM3_RAPPORT);
        EXPECT_TRUE(has(machine.boxes.takeTexts().at(0), L"Le rapport n'a pas pu être écrit."));
    }
    EXPECT_EQ(listFile(), before);
    click(kSave);
    EXPECT_EQ(states(), L"0 1");
}
