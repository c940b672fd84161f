// What the window takes over when it is loaded, and what it leaves behind.

#include "unit/tracking/tracking_window_fixture.h"

using Load = TrackingFixture;
using Leaving = TrackingFixture;

TEST_F(Load, PutsTheWindowInItsPlaceHidesWhatIsNotForTheUserAndTicksTheOptions) {
    loadStates(L"00");
    EXPECT_EQ(window().area.corner(), (Point{-40, 20}));
    EXPECT_FALSE(window().checkBox(IDC_FORM3_CKMINIMISE).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_CMDMEMO).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_NUMFICHCOUR).visible);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"0");
    const std::pair<const wchar_t*, std::wstring> cases[] = {
        {L"0101", L"0101"}, {L"", L"0000"}, {L"11", L"1100"}, {L"21x1", L"0101"}};
    for (const auto& [saved, expected] : cases) {
        machine.settings.write(L"tarnwick", L"startup", L"RegCheck", saved);
        loadStates(L"00");
        std::wstring ticked;
        for (const int box : kOptionBoxes) ticked += window().checkBox(box).ticked ? L'1' : L'0';
        EXPECT_EQ(ticked, expected) << saved;
    }
}

TEST_F(Leaving, BySortieSavesPlaceAndOptionsAndClosesTheDocument) {
    loadStates(L"00");
    window().leaveAt(2'667, 100);
    tickOptions(L"1001");
    EXPECT_THROW(click(kLeave), ProgramEnd);
    EXPECT_EQ(takeCalls(), CallJournal{L"closedoc(\"c:\\a\")"});
    std::wstring saved;
    for (const wchar_t* key : {L"toppos3", L"leftpos3", L"regcheck"}) {
        saved += machine.settings.read(L"tarnwick", L"startup", key, L"") + L' ';
    }
    EXPECT_EQ(saved, L"1500 32767 1001 ");
    EXPECT_EQ(listFile(), L"0  c:\\a\r\n0  c:\\b\r\n");
}

TEST_F(Leaving, ListFileSavedTwiceLosesItsFlaggedStates) {
    load(L"0  c:\\a\r\n10  c:\\b\r\n0  c:\\c\r\n");
    click(kSaveList);
    EXPECT_EQ(states(), L"3 10 0");
    click(kSaveList);
    EXPECT_EQ(listFile(), L"3  c:\\a\r\n110  c:\\b\r\n0  c:\\c\r\n");
    // Flagged and saved, a line is no longer found as to do.
    click(kSave);
    EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), L"2");
}

TEST_F(Leaving, SavingKeepsWhatOthersMadeOfTheListFileOrSavesNothing) {
    const std::wstring copy = machine.programFiles.othersList();
    const std::wstring ours = L"3  c:\\a\r\n0  c:\\b\r\n";
    auto& files = machine.files.texts;
    loadStates(L"00");
    click(kSaveList);
    // Looked for, kept or written in vain once, what another made of it is not lost.
    const std::wstring others = L"1  c:\\de Zoé\r\n";
    for (const std::wstring& file : {machine.programFiles.list, copy}) {
        for (int wellFor = 0; wellFor < 3; ++wellFor) {
            listFile() = others;
            files.erase(copy);
            machine.files.wellFor = wellFor;
            machine.files.failing = {{file, 1}};
            raised([&] { click(kSaveList); });
            EXPECT_TRUE(listFile() == others || files[copy] == others) << wellFor;
        }
    }
    machine.files.failing.clear();
    EXPECT_EQ(listFile(), ours);
    EXPECT_FALSE(machine.boxes.takeTexts().empty());
    files.erase(copy);
    click(kSaveList);
    files.erase(machine.programFiles.list);
    click(kSaveList);
    EXPECT_EQ(listFile(), ours);
    EXPECT_FALSE(files.contains(copy)) << "nobody changed it, or it was gone";
    EXPECT_EQ(machine.boxes.takeTexts(), Texts());
    machine.listHolds.takenBy = {L"Zoé", L"PC-12"};  // while the network was away
    click(kSave);
    EXPECT_TRUE(has(machine.boxes.takeTexts().at(0), L"par Zoé sur PC-12"));
}

TEST_F(Leaving, ListFileHasAsManyLinesAsTheCounterShows) {
    loadStates(L"000");
    window().control(IDC_FORM3_CPTFICHIER1).content = L"2";
    click(kSaveList);
    EXPECT_EQ(listFile(), L"3  c:\\a\r\n0  c:\\b\r\n");
    // It is whole after a load that ends the list.
    loadStates(L"12");
    EXPECT_TRUE(!canAdvance() && canStepBack() && cad->hasOpen(L""));
    click(kSaveList);
    EXPECT_EQ(listFile(), L"1  c:\\a\r\n2  c:\\b\r\n");
}
