// A CAD session that is busy or slow in the middle of a pass.

#include "scenario.h"

const std::vector<std::string> kFour = {"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"};

struct BusyCad : Scenario {
    void waitForCall(const std::string& text) const {
        waitFor("the call " + text, [&] { return cad.countOf(text) > 0; });
    }

    static void answerBusyBox(const AppDriver& program, int answer) {
        const ModalBox box = program.box();
        EXPECT_EQ(box.text().find("SolidWorks est occupé."), 0U);
        EXPECT_NE(box.text().find("Annuler : Tarnwick s'arrête."), std::string::npos);
        EXPECT_EQ(box.buttons(), (std::vector<int>{IDCANCEL, IDRETRY}));
        box.answer(answer);
    }
};

// Two programs at once, for each has to wait ten seconds.
TEST_F(BusyCad, RepeatsRefusedCallsAndLookUpsAndAsksAfterTenSeconds) {
    writeListOf(kFour);
    cad.start({"--busy", "GetIDsOfNames:1500", "--busy", "GetSearchFolders:12000", "--busy",
               "Save2:600000"});
    AppDriver other{sandbox};
    other.start({"autre.lst"});
    other.click(IDC_FORM1_CMDREPDEF);
    startAndResume();
    app.waitForText(IDC_FORM3_NBFICH1, "1");
    app.click(IDC_FORM3_CMDSUIV);
    answerBusyBox(other, IDRETRY);
    other.window(kConfigurations);
    answerBusyBox(app, IDCANCEL);
    expectFatalError(440);
    EXPECT_EQ(sandbox.readList(), listOf({"0", "0", "0", "0"}));
}

TEST_F(BusyCad, ImpatientPressesAreNotFurtherCommands) {
    resume(kFour, {"--delay", "OpenDoc6:3000"});
    app.window(kTracking);  // shown when the first document is
    // All at once, so that the first is still at work when the last are taken up.
    HWND button = app.control(IDC_FORM3_CMDSUIV);
    for (int i = 0; i < 8; ++i) {
        post(button, i % 2 ? WM_LBUTTONUP : WM_LBUTTONDOWN, 0, MAKELPARAM(5, 5));
    }
    for (const UINT key : {WM_KEYDOWN, WM_KEYUP}) post(button, key, VK_SPACE, 1);
    waitForCall("b.SLDPRT.ViewZoomtofit2");
    // A command that comes after them shows that none of them still waits.
    app.click(IDC_FORM3_CMDFICHIERLISTE);
    expectList(listOf({"1", "3", "0", "0"}));
    EXPECT_EQ(cad.countOf("save2"), 1);
}

TEST_F(BusyCad, OtherProgramsCommandsAndTheFrameWaitForTheCall) {
    resume(kFour, {"--delay", "OpenDoc6:2000"});
    app.waitForText(IDC_FORM3_NBFICH1, "1");
    app.click(IDC_FORM3_CMDSUIVSAUTER);
    waitForCall("OpenDoc6(&\"" + paths[1]);
    app.click(IDC_FORM3_CMDSUIVSAUTER);
    waitForCall("OpenDoc6(&\"" + paths[2]);
    EXPECT_EQ(cad.countOf("b.SLDPRT.ViewZoomtofit2"), 1) << "b was left before it was shown";
    expectEnd(kTracking);
    EXPECT_EQ(cad.countOf("c.SLDPRT.ViewZoomtofit2"), 1) << "the command was cut off";
}
