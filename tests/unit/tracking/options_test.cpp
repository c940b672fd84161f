#include "unit/tracking/tracking_window_fixture.h"

namespace {

class Options : public TrackingFixture {
 protected:
    std::wstring option(const wchar_t* key) {
        return machine.settings.read(L"tarnwick", L"options", key, L"-");
    }
    void keep(const wchar_t* key) { machine.settings.write(L"tarnwick", L"options", key, L"1"); }
    bool marked(int item) { return window().menuMarks.contains(item); }
};

}  // namespace

TEST_F(Options, AreOffUntilChosenAndKeptAtOnce) {
    loadStates(L"00");
    EXPECT_TRUE(window().menuMarks.empty());
    EXPECT_EQ(option(L"touches"), L"-");
    click(IDM_FORM3_TOUJOURSVISIBLE);
    click(IDM_FORM3_TOUCHES);
    click(IDM_FORM3_PREMIERPLAN);
    EXPECT_EQ(option(L"toujoursvisible") + option(L"touches") + option(L"premierplan"), L"111");
    start();
    EXPECT_TRUE(window().topmost);
    EXPECT_TRUE(window().hasHotKeys);
    EXPECT_EQ(window().menuMarks.size(), 3U);
    click(IDM_FORM3_TOUJOURSVISIBLE);
    click(IDM_FORM3_TOUCHES);
    click(IDM_FORM3_PREMIERPLAN);
    EXPECT_EQ(option(L"toujoursvisible") + option(L"touches") + option(L"premierplan"), L"000");
    EXPECT_TRUE(window().menuMarks.empty());
    EXPECT_FALSE(window().topmost);
    EXPECT_FALSE(window().hasHotKeys);
}

TEST_F(Options, KeysStayOffWhenOneIsTaken) {
    loadStates(L"00");
    window().keysOfOthers = {L"Ctrl+Maj+2", L"Ctrl+Maj+4"};
    click(IDM_FORM3_TOUCHES);
    EXPECT_NE(machine.boxes.shown.back().text.find(L"\r\nCtrl+Maj+2\r\nCtrl+Maj+4\r\n"),
              std::wstring::npos);
    EXPECT_FALSE(marked(IDM_FORM3_TOUCHES));
    EXPECT_EQ(option(L"touches"), L"-");
}

TEST_F(Options, AnyReleaseIsFoundByTheBeginningOfItsTitle) {
    keep(L"premierplan");
    machine.automation.revision = L"28.1";
    machine.desktop.windows = {{L"b - SolidWorks", 1},
                               {L"SOLIDWORKS", 2},
                               {L"SOLIDWORKS Premium 2020 - [b.SLDPRT *]", 3},
                               {L"SOLIDWORKS Premium 2020 - [a.SLDPRT *]", 4}};
    load(L"0  c:\\a.SLDPRT\r\n0  c:\\b.SLDPRT\r\n");
    EXPECT_EQ(machine.desktop.broughtForward.back(), 4U);
    EXPECT_EQ(machine.desktop.restored.back(), 4U);
    click(IDM_FORM3_PREMIERPLAN);
    click(IDC_FORM3_CMDSUIVSAUTER);
    EXPECT_EQ(machine.desktop.broughtForward.back(), 0U);
    EXPECT_EQ(machine.desktop.restored.size(), 1U);
}

TEST_F(Options, ReportIsWrittenWhereTheUserWantsIt) {
    loadStates(L"00");
    click(IDM_FORM3_RAPPORT);
    const SaveQuestion& asked = machine.fileDialogs.asked.back();
    EXPECT_EQ(asked.directory + L"|" + asked.name, L"c:\\tarnwick|tarnwick-rapport.csv");
    machine.fileDialogs.answer = L"c:\\tarnwick\\r.csv";
    click(IDM_FORM3_RAPPORT);
    EXPECT_NE(machine.files.texts[L"c:\\tarnwick\\r.csv"].find(L"\r\n2;A faire;c:\\b;;;\r\n"),
              std::wstring::npos);
    EXPECT_TRUE(machine.boxes.shown.empty());
}

TEST_F(Options, ThePassGoesOnWithoutAReport) {
    loadStates(L"00");
    const std::wstring before = listFile();
    machine.files.unreadable.insert(L"c:\\r.csv");
    for (const wchar_t* path : {L"c:\\r.csv", L"C:\\Tarnwick\\TARNWICK.LST"}) {
        machine.fileDialogs.answer = path;
        click(IDM_FORM3_RAPPORT);
        ASSERT_FALSE(machine.boxes.shown.empty());
        EXPECT_EQ(machine.boxes.shown.back().text.find(L"Le rapport n'a pas pu être écrit."), 0U);
    }
    EXPECT_EQ(machine.boxes.shown.size(), 2U);
    EXPECT_EQ(listFile(), before);
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(states(), L"1 3");
}
