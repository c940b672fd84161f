#include "unit/tracking/tracking_window_fixture.h"

using StepBack = TrackingFixture;

TEST_F(StepBack, OpensTheNearestLineToDoAbove) {
    for (const int button : {IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4}) {
        loadStates(L"00120");
        click(IDC_FORM3_CMDSUIVSAUTER);  // from a to b
        click(IDC_FORM3_CMDSUIVSAUTER);  // to e
        click(IDC_FORM3_CMDSUIVSAUTER);  // to the end
        click(button);                   // back to e
        takeCalls();
        click(button);
        // The name of the document just closed is kept, so that it is closed a second time.
        EXPECT_EQ(takeCalls(),
                  (CallJournal{L"closedoc(\"c:\\e\")", L"closedoc(\"c:\\e\")",
                               L"OpenDoc6(&\"c:\\b\", &0:i2, 1:i4, \"\", &0:i4, &0:i4)",
                               L"ActivateDoc2(&\"c:\\b\", True, &0:i4)", L"Visible = True",
                               L"b.GetTitle()", L"b.GetTitle()", L"b.ViewZoomtofit2()"}));
        EXPECT_EQ(states(), L"0 3 1 2 0");
        EXPECT_EQ(shown(), L"1: 2/5 c:\\b");
        EXPECT_EQ(list().selection(), std::vector{1});
    }
}

TEST_F(StepBack, FromTheFirstLineToDoLeavesNoCurrentLine) {
    loadStates(L"100");
    click(IDC_FORM3_CMDPRECEDENT);
    EXPECT_EQ(takeCalls(), CallJournal{L"closedoc(\"c:\\b\")"});
    EXPECT_EQ(states(), L"1 0 0");
    EXPECT_EQ(shown(), L"-1: 2/3 aucun");
    EXPECT_TRUE(list().selection().empty());
    EXPECT_FALSE(canStepBack());
    EXPECT_TRUE(canAdvance());
}

TEST_F(StepBack, TakesADocumentOfTheSamePathAsOpen) {
    load(L"0  c:\\Été.SLDPRT\r\n0  C:\\éTÉ.sldprt\r\n");
    click(IDC_FORM3_CMDSUIVSAUTER);
    takeCalls();
    click(IDC_FORM3_CMDPRECEDENT);
    EXPECT_EQ(takeCalls(), (CallJournal{L"closedoc(\"C:\\éTÉ.sldprt\")", L"éTÉ.sldprt.GetTitle()",
                                        L"éTÉ.sldprt.GetTitle()", L"éTÉ.sldprt.ViewZoomtofit2()"}));
    EXPECT_EQ(states(), L"3 0");
}
