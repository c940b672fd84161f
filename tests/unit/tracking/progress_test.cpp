#include "unit/tracking/tracking_window_fixture.h"

using Progress = TrackingFixture;

TEST_F(Progress, CountsTheLinesNoLongerToDoUntilThePassEnds) {
    const auto shown = [&] { return std::pair(window().progressDone, window().progressTotal); };
    loadStates(L"01200");
    EXPECT_EQ(shown(), std::pair(2, 5));
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(shown(), std::pair(3, 5));
    click(IDC_FORM3_CMDSUIVSAUTER);
    EXPECT_EQ(shown(), std::pair(3, 5));
    click(IDC_FORM3_CMDSUIVQUITTER);
    EXPECT_EQ(shown(), std::pair(0, 0));
    click(IDC_FORM3_CMDPRECEDENT);
    EXPECT_EQ(shown(), std::pair(4, 5));
}
