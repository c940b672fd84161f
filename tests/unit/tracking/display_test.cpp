#include "unit/tracking/tracking_window_fixture.h"

using Display = TrackingFixture;

TEST_F(Display, OfANewListShowsAllLinesButTheFirstAsToDo) {
    load(L"1  c:\\a\r\n0  c:\\b\r\n2  c:\\c\r\n0  c:\\d\r\n", Origin::LaunchedAfterDeclining);
    EXPECT_EQ(list().texts(), (Texts{L"0001   Fait          c:\\a", L"0002                c:\\b",
                                     L"0003                c:\\c", L"0004                c:\\d"}));
    // The next redraw shows the states.
    click(kSee);
    EXPECT_EQ(list().texts(), (Texts{L"0001   Fait          c:\\a", L"0002   Vu            c:\\b",
                                     L"0003   Vu            c:\\c", L"0004   EnCours  c:\\d"}));
}

TEST_F(Display, OfAnUnknownStateTakesTheLabelAbove) {
    load(L"5  c:\\a\r\n1  c:\\b\r\n7  c:\\c\r\nx  c:\\d\r\n0  c:\\e\r\n6  c:\\f\r\n");
    EXPECT_EQ(list().texts(), (Texts{L"0001  c:\\a", L"0002   Fait          c:\\b",
                                     L"0003   Fait          c:\\c", L"0004   Fait          c:\\d",
                                     L"0005   EnCours  c:\\e", L"0006   EnCours  c:\\f"}));
    // And changes with it.
    click(kSee);
    EXPECT_EQ(list().texts()[5], L"0006   Vu            c:\\f");
}

TEST_F(Display, RedrawnInPlaceLosesTheUsersSelection) {
    loadStates(L"00120");
    select({0, 3, 4});
    click(kSave);
    EXPECT_EQ(list().selection(), std::vector{1});
    click(IDC_FORM3_CMDPLUS1);
    EXPECT_TRUE(list().selection().empty());
    EXPECT_EQ(list().drawingStops, 0);
}

TEST_F(Display, DepthHidesLevelsOfAllLines) {
    load(L"0  C:\\A\\B\\f\r\n1  C:\\g\r\n2  C:\\A\\h\r\n");
    const Texts whole = list().texts();
    const Texts oneLevel = {L"0001   EnCours  C:\\..\\B\\f", L"0002   Fait          ",
                            L"0003   Vu            C:\\..\\h"};
    for (int i = 0; i < 10; ++i) click(IDC_FORM3_CMDPLUS1);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"9");
    for (int i = 0; i < 10; ++i) click(IDC_FORM3_CMDMOINS1);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"0");
    EXPECT_EQ(list().texts(), whole);
    click(IDC_FORM3_CMDPLUS1);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"1");
    EXPECT_EQ(list().texts(), oneLevel);
    click(kSave);
    EXPECT_EQ(list().texts()[0], L"0001   Fait          C:\\..\\B\\f");
    click(IDC_FORM3_CMDMOINS1);
    EXPECT_EQ(list().texts()[1], whole[1]);
    std::wstring many;
    for (int i = 0; i < 120; ++i) many += L"0  C:\\A\\f\r\n";
    load(many);
    click(IDC_FORM3_CMDPLUS1);
    for (const auto& line : list().texts()) EXPECT_TRUE(line.ends_with(L"C:\\..\\f")) << line;
}

TEST_F(Display, CountsTheLinesNoLongerToDoUntilThePassEnds) {
    loadStates(L"01200");
    std::vector<int> shown;
    for (const int button : {IDC_FORM3_CMDDESELECT, kSave, kSkip, kSee, kBack}) {
        click(button);
        shown.insert(shown.end(), {window().progressDone, window().progressTotal});
    }
    EXPECT_EQ(shown, (std::vector{2, 5, 3, 5, 3, 5, 0, 0, 4, 5}));
}
