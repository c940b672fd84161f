#include "unit/tracking/tracking_window_fixture.h"

using Leaving = TrackingFixture;

TEST_F(Leaving, BySortieSavesPlaceAndOptionsAndClosesTheDocument) {
    loadStates(L"00");
    window().leaveAt(2'667, 100);
    const int ticked[] = {IDC_FORM3_CKMINIMISE, IDC_FORM3_CKRECONS2};
    for (const int box : {IDC_FORM3_CKSILENT, IDC_FORM3_CKRECONS}) {
        window().checkBox(box).ticked = false;
    }
    for (const int box : ticked) window().checkBox(box).ticked = true;
    EXPECT_THROW(click(IDC_FORM3_CMDSORTIE), ProgramEnd);
    EXPECT_EQ(takeCalls(), CallJournal{L"closedoc(\"c:\\a\")"});
    EXPECT_EQ(machine.settings.read(L"tarnwick", L"startup", L"toppos3", L""), L"1500");
    EXPECT_EQ(machine.settings.read(L"tarnwick", L"startup", L"leftpos3", L""), L"32767");
    EXPECT_EQ(machine.settings.read(L"tarnwick", L"startup", L"regcheck", L""), L"1001");
    EXPECT_EQ(listFile(), L"0  c:\\a\r\n0  c:\\b\r\n");
}

TEST_F(Leaving, ListFileSavedTwiceLosesItsFlaggedStates) {
    load(L"0  c:\\a\r\n10  c:\\b\r\n0  c:\\c\r\n");
    click(IDC_FORM3_CMDFICHIERLISTE);
    EXPECT_EQ(states(), L"3 10 0");
    click(IDC_FORM3_CMDFICHIERLISTE);
    EXPECT_EQ(listFile(), L"3  c:\\a\r\n110  c:\\b\r\n0  c:\\c\r\n");
    // Flagged and saved, a line is no longer found as to do.
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), L"2");
    load(listFile());
    EXPECT_EQ(work().lines[1].code, "100");
}

TEST_F(Leaving, ListFileHasAsManyLinesAsTheCounterShows) {
    load(L"0  c:\\a\r\n0  c:\\b\r\n0  c:\\c\r\n");
    window().control(IDC_FORM3_CPTFICHIER1).content = L"2";
    click(IDC_FORM3_CMDFICHIERLISTE);
    EXPECT_EQ(listFile(), L"3  c:\\a\r\n0  c:\\b\r\n");
}

TEST_F(Leaving, ListFileIsWholeAfterALoadThatEndsTheList) {
    loadStates(L"12");
    EXPECT_FALSE(canAdvance());
    EXPECT_TRUE(canStepBack() && cad().hasOpen(L""));
    click(IDC_FORM3_CMDFICHIERLISTE);
    EXPECT_EQ(listFile(), L"1  c:\\a\r\n2  c:\\b\r\n");
}
