// A CAD session that is busy or slow in the middle of a pass.

#include <algorithm>

#include "scenario.h"

namespace {

struct BusyCad : Scenario {
    /// Resumes a list of four documents in a session with these options.
    void Resume(const std::vector<std::string>& cadOptions) {
        WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"});
        cad.Start(cadOptions);
        StartAndResume();
    }

    /// How many calls received so far contain this text.
    int CallsWith(const std::string& text) const {
        const auto calls = cad.Calls();
        return static_cast<int>(std::ranges::count_if(
            calls, [&](const std::string& call) { return call.find(text) != std::string::npos; }));
    }

    void WaitForCall(const std::string& text) const {
        WaitFor("the call " + text, [&] { return CallsWith(text) > 0; });
    }

    static void AnswerBusyBox(const AppDriver& program, int answer) {
        const ModalBox box = program.Box();
        EXPECT_EQ(box.Text().find("SolidWorks est occupé."), 0U);
        EXPECT_NE(box.Text().find("Annuler : Tarnwick s'arrête."), std::string::npos);
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDCANCEL, IDRETRY}));
        box.Answer(answer);
    }
};

// Two programs at once, for each has to wait ten seconds.
TEST_F(BusyCad, RepeatsRefusedCallsAndLookUpsAndAsksAfterTenSeconds) {
    WriteListOf({"a.SLDPRT", "b.SLDPRT"});
    cad.Start({"--busy", "GetIDsOfNames:1500", "--busy", "GetSearchFolders:12000", "--busy",
               "Save2:600000"});
    AppDriver other{sandbox};
    other.Start({"autre.lst"});
    other.Click(IDC_FORM1_CMDREPDEF);
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    app.Click(IDC_FORM3_CMDSUIV);
    AnswerBusyBox(other, IDRETRY);
    other.Window(kConfigurations);
    AnswerBusyBox(app, IDCANCEL);
    ExpectFatalError(440);
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0", "0"}));
}

TEST_F(BusyCad, ImpatientPressesAreNotFurtherCommands) {
    Resume({"--delay", "OpenDoc6:3000"});
    app.Window(kTracking);  // shown when the first document is
    // All at once, so that the first is still at work when the last are taken up.
    HWND button = app.Control(IDC_FORM3_CMDSUIV);
    for (int i = 0; i < 4; ++i) {
        for (const UINT mouse : {WM_LBUTTONDOWN, WM_LBUTTONUP})
            Post(button, mouse, 0, MAKELPARAM(5, 5));
    }
    for (const UINT key : {WM_KEYDOWN, WM_KEYUP}) Post(button, key, VK_SPACE, 1);
    WaitForCall("b.SLDPRT.ViewZoomtofit2");
    // A command that comes after them shows that none of them still waits.
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"1", "3", "0", "0"}));
    EXPECT_EQ(CallsWith("save2"), 1);
}

TEST_F(BusyCad, TypingMeanwhileIsKept) {
    sandbox.AddDocument("a.SLDPRT");
    sandbox.AddDocument("b.SLDDRW");
    StartInDocuments({"--delay", "GetSearchFolders:2000"});
    app.WaitForText(IDC_FORM1_CPTFICHIER, "1");
    HWND field = GetWindow(app.Control(IDC_FORM1_TYPEF), GW_CHILD);
    Send(field, EM_SETSEL, 0, 0);
    app.Click(IDC_FORM1_CMDREPDEF);
    WaitForCall("GetSearchFolders");
    for (const char letter : {'S', 'L', 'D', 'P', 'R', 'T'})
        Post(field, WM_CHAR, static_cast<WPARAM>(letter), 1);
    app.WaitForText(IDC_FORM1_CPTFICHIER, "2");
    EXPECT_EQ(CallsWith("GetSearchFolders"), 1);
}

TEST_F(BusyCad, OtherProgramsCommandsAndTheFrameWaitForTheCall) {
    Resume({"--delay", "OpenDoc6:2000"});
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    WaitForCall("OpenDoc6(&\"" + paths[1]);
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    WaitForCall("OpenDoc6(&\"" + paths[2]);
    EXPECT_EQ(CallsWith("b.SLDPRT.ViewZoomtofit2"), 1) << "b was left before it was shown";
    ExpectEnd(kTracking);
    EXPECT_EQ(CallsWith("c.SLDPRT.ViewZoomtofit2"), 1) << "the command was cut off";
}

}  // namespace
