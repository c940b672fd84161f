#include "unit/tracking/tracking_window_fixture.h"

namespace {

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

}  // namespace

TEST_F(Options, AreOffUntilChosenAndKeptAtOnce) {
    loadStates(L"00");
    EXPECT_TRUE(window().menuMarks.empty());
    EXPECT_EQ(options(), L"---");
    clickAll({IDM_FORM3_TOUJOURSVISIBLE, IDM_FORM3_TOUCHES, IDM_FORM3_PREMIERPLAN});
    EXPECT_EQ(options(), L"111");
    start();
    EXPECT_TRUE(window().topmost && window().hasHotKeys);
    EXPECT_EQ(window().menuMarks.size(), 3U);
    clickAll({IDM_FORM3_TOUJOURSVISIBLE, IDM_FORM3_TOUCHES, IDM_FORM3_PREMIERPLAN});
    EXPECT_EQ(options(), L"000");
    EXPECT_TRUE(window().menuMarks.empty());
    EXPECT_FALSE(window().topmost || window().hasHotKeys);
}

TEST_F(Options, KeysStayOffWhenOneIsTaken) {
    loadStates(L"00");
    window().keysOfOthers = {L"Ctrl+Maj+2", L"Ctrl+Maj+4"};
    click(IDM_FORM3_TOUCHES);
    EXPECT_NE(machine.boxes.shown.back().text.find(L"\r\nCtrl+Maj+2\r\nCtrl+Maj+4\r\n"),
              std::wstring::npos);
    EXPECT_TRUE(window().menuMarks.empty());
    EXPECT_EQ(options(), L"---");
}

TEST_F(Options, AnyReleaseIsFoundByTheBeginningOfItsTitle) {
    machine.settings.write(L"tarnwick", L"options", L"premierplan", L"1");
    machine.automation.revision = L"28.1";
    machine.desktop.windows = {{L"b - SolidWorks", 1},
                               {L"SOLIDWORKS", 2},
                               {L"SOLIDWORKS Premium 2020 - [b.SLDPRT *]", 3},
                               {L"SOLIDWORKS Premium 2020 - [a.SLDPRT *]", 4}};
    load(L"0  c:\\a.SLDPRT\r\n0  c:\\b.SLDPRT\r\n");
    EXPECT_EQ(machine.desktop.broughtForward.back(), 4U);
    EXPECT_EQ(machine.desktop.restored.back(), 4U);
    clickAll({IDM_FORM3_PREMIERPLAN, IDC_FORM3_CMDSUIVSAUTER});
    EXPECT_EQ(machine.desktop.broughtForward.back(), 0U);
    EXPECT_EQ(machine.desktop.restored.size(), 1U);
}

TEST_F(Options, ReportIsWrittenWhereTheUserWantsItOrThePassGoesOnWithoutIt) {
    loadStates(L"00");
    click(IDM_FORM3_RAPPORT);
    const SaveQuestion& asked = machine.fileDialogs.asked.back();
    EXPECT_EQ(asked.directory + L"|" + asked.name, L"c:\\tarnwick|tarnwick-rapport.csv");
    machine.fileDialogs.answer = L"c:\\tarnwick\\r.csv";
    click(IDM_FORM3_RAPPORT);
    EXPECT_NE(machine.files.texts[L"c:\\tarnwick\\r.csv"].find(L"\r\n2;A faire;c:\\b;;;;\r\n"),
              std::wstring::npos);
    EXPECT_TRUE(machine.boxes.shown.empty());

    const std::wstring before = listFile();
    machine.files.unreadable.insert(L"c:\\r.csv");
    for (const wchar_t* path : {L"c:\\r.csv", L"C:\\Tarnwick\\TARNWICK.LST"}) {
        machine.fileDialogs.answer = path;
        click(IDM_FORM3_RAPPORT);
    }
    ASSERT_EQ(machine.boxes.shown.size(), 2U);
    for (const auto& box : machine.boxes.shown) {
        EXPECT_TRUE(box.text.starts_with(L"Le rapport n'a pas pu être écrit.")) << box.text;
    }
    EXPECT_EQ(listFile(), before);
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(states(), L"1 3");
}
