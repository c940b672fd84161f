// A CAD session that is busy, slow, or dies in the middle of a pass.

#include <algorithm>

#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "scenario.h"
#include "selection/selection_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

class BusyCad : public Scenario {
 protected:
    BusyCad() {
        for (const char* name : {"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"}) {
            list += ListLine("0", sandbox.AddDocument(name));
        }
        sandbox.WriteList(list);
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

    /// What a user's press on a button puts into the program's message queue.
    void PressWithMouse(int id) const {
        HWND button = app.Control(id);
        constexpr LPARAM kPoint = MAKELPARAM(5, 5);
        Post(button, WM_LBUTTONDOWN, MK_LBUTTON, kPoint);
        Post(button, WM_LBUTTONUP, 0, kPoint);
    }

    void PressSpaceBar(int id) const {
        HWND button = app.Control(id);
        Post(button, WM_KEYDOWN, VK_SPACE, 1);
        Post(button, WM_KEYUP, VK_SPACE, 1);
    }

    void ExpectBusyBox(int answer) const {
        const ModalBox box = app.Box();
        EXPECT_EQ(box.Text().find("SolidWorks est occupé."), 0U);
        EXPECT_NE(box.Text().find("Annuler : Tarnwick s'arrête."), std::string::npos);
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDCANCEL, IDRETRY}));
        box.Answer(answer);
    }

    std::string list;
};

TEST_F(BusyCad, RefusedCallsAreRepeatedWithoutAWord) {
    cad.Start({"--busy", "OpenDoc6:1500"});
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    WaitForCall("ViewZoomtofit2");
    EXPECT_GT(CallsWith("OpenDoc6(&\"" + sandbox.AddDocument("a.SLDPRT")), 1);
    EXPECT_GT(CallsWith("-> rejected"), 0);
    EXPECT_FALSE(app.ShowsBox());
}

TEST_F(BusyCad, RefusedNameLookUpsAreRepeatedToo) {
    cad.Start({"--busy", "GetIDsOfNames:1500"});
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    WaitForCall("ViewZoomtofit2");
    EXPECT_FALSE(app.ShowsBox());
}

TEST_F(BusyCad, AsksAfterTenSecondsAndGoesOn) {
    cad.Start({"--busy", "OpenDoc6:12000"});
    StartAndResume();
    ExpectBusyBox(IDRETRY);
    WaitForCall("ViewZoomtofit2");
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
}

TEST_F(BusyCad, AsksAfterTenSecondsAndGivesUp) {
    cad.Start({"--busy", "OpenDoc6:600000"});
    StartAndResume();
    ExpectBusyBox(IDCANCEL);
    ExpectFatalError(440);
    EXPECT_EQ(sandbox.ReadList(), list);
}

TEST_F(BusyCad, ImpatientPressesAreNotFurtherCommands) {
    cad.Start({"--delay", "OpenDoc6:3000"});
    StartAndResume();
    app.Window("Tarnwick - suivi du travail -");  // shown when the first document is
    // All at once, so that the first is still at work when the last are taken up.
    for (int i = 0; i < 4; ++i) PressWithMouse(IDC_FORM3_CMDSUIV);
    PressSpaceBar(IDC_FORM3_CMDSUIV);
    WaitForCall("b.SLDPRT.ViewZoomtofit2");
    // A command that comes after them shows that none of them still waits.
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListLine("1", sandbox.AddDocument("a.SLDPRT")) +
               ListLine("3", sandbox.AddDocument("b.SLDPRT")) +
               ListLine("0", sandbox.AddDocument("c.SLDPRT")) +
               ListLine("0", sandbox.AddDocument("d.SLDPRT")));
    EXPECT_EQ(CallsWith("save2"), 1);
}

TEST_F(BusyCad, TypingMeanwhileIsKept) {
    sandbox.AddDocument("e.SLDDRW");
    cad.Start({"--delay", "GetSearchFolders:2000", "--working-directory",
               Utf8(sandbox.Documents().wstring())});
    app.Start();
    app.Click(IDC_FORM2_CMDANNULE);
    app.WaitForText(IDC_FORM1_CPTFICHIER, "1");
    app.Click(IDC_FORM1_CMDREPDEF);
    WaitForCall("GetSearchFolders");
    HWND field = GetWindow(app.Control(IDC_FORM1_TYPEF), GW_CHILD);
    for (const char letter : {'S', 'L', 'D', 'P', 'R', 'T'}) {
        Post(field, WM_CHAR, static_cast<WPARAM>(letter), 1);
    }
    app.WaitForText(IDC_FORM1_CPTFICHIER, "5");
    EXPECT_EQ(CallsWith("GetSearchFolders"), 1);
    EXPECT_NE(app.TextOf(IDC_FORM1_TYPEF).find("SLDPRT"), std::string::npos);
}

TEST_F(BusyCad, CommandsOfOtherProgramsWaitForTheCall) {
    cad.Start({"--delay", "OpenDoc6:2000"});
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    WaitForCall("OpenDoc6(&\"" + sandbox.AddDocument("b.SLDPRT"));
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    app.WaitForText(IDC_FORM3_NBFICH1, "3");
    EXPECT_EQ(CallsWith("b.SLDPRT.ViewZoomtofit2"), 1) << "b was left before it was shown";
}

TEST_F(BusyCad, RequestToCloseIsObeyedAfterTheCall) {
    cad.Start({"--delay", "OpenDoc6:2000"});
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    app.Click(IDC_FORM3_CMDSUIV);
    WaitForCall("OpenDoc6(&\"" + sandbox.AddDocument("b.SLDPRT"));
    app.CloseByFrame("Tarnwick - suivi du travail -");
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_EQ(CallsWith("b.SLDPRT.ViewZoomtofit2"), 1) << "the command was cut off";
    EXPECT_EQ(sandbox.ReadList(), list);
}

TEST_F(BusyCad, SessionThatDiesLeavesTheSavedList) {
    cad.Start();
    StartAndResume();
    app.Click(IDC_FORM3_CMDSUIV);
    app.WaitForText(IDC_FORM3_NBFICH1, "2");
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    const std::string saved = ListLine("1", sandbox.AddDocument("a.SLDPRT")) +
                              ListLine("3", sandbox.AddDocument("b.SLDPRT")) +
                              ListLine("0", sandbox.AddDocument("c.SLDPRT")) +
                              ListLine("0", sandbox.AddDocument("d.SLDPRT"));
    ExpectList(saved);
    cad.Kill();
    app.Click(IDC_FORM3_CMDSUIV);
    ExpectFatalError(440);
    EXPECT_EQ(sandbox.ReadList(), saved);
}

}  // namespace
}  // namespace driver
