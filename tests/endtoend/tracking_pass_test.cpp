#include "driver/wait.h"
#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

using calls::Close;
using calls::Open;
using calls::Save;
using calls::Together;

// What stands between the number and the path of a line in the list box.
const std::string kToDo = "              ";
const std::string kDone = " Fait          ";
const std::string kSeen = " Vu            ";
const std::string kInProgress = " EnCours  ";

class TrackingPass : public Scenario {
 protected:
    TrackingPass() {
        for (const char* name : {"Bâti\\Bride d'entrée.SLDPRT", "Bâti\\Ensemble bâti.SLDASM",
                                 "Plans\\Bâti n° 1.SLDDRW", "déjà faite.SLDPRT", "Axe.SLDPRT",
                                 "déjà vue.SLDPRT", "Écrou [M8].SLDPRT", "Zoé & fils.SLDASM"})
            paths.push_back(sandbox.AddDocument(name));
    }

    /// The list file of these documents with a code for each.
    std::string ListOf(const std::vector<std::string>& codes) const {
        std::string bytes;
        for (size_t i = 0; i < codes.size(); ++i) bytes += ListLine(codes[i], paths[i]);
        return bytes;
    }

    void ExpectLines(const std::vector<std::string>& labels) const {
        std::vector<std::string> lines;
        for (size_t i = 0; i < labels.size(); ++i)
            lines.push_back("000" + std::to_string(i + 1) + "  " + labels[i] + paths[i]);
        EXPECT_EQ(app.Lines(IDC_FORM3_LIST1), lines);
    }

    /// The line is current: number, path and selection say so.
    void ExpectCurrent(int line) const {
        app.WaitForText(IDC_FORM3_TXTETAT, paths[static_cast<size_t>(line)]);
        EXPECT_EQ(app.TextOf(IDC_FORM3_NBFICH1), std::to_string(line + 1));
        EXPECT_EQ(app.TextOf(IDC_FORM3_NUMFICHCOUR), std::to_string(line));
        EXPECT_EQ(app.Selected(IDC_FORM3_LIST1), std::vector{line});
    }

    void ExpectEnabled(std::initializer_list<int> buttons, bool enabled) const {
        for (int button : buttons) EXPECT_EQ(app.Enabled(button), enabled) << button;
    }

    std::vector<std::string> paths;
};

constexpr std::initializer_list<int> kNext{IDC_FORM3_CMDSUIV,       IDC_FORM3_CMDSUIVQUITTER,
                                           IDC_FORM3_CMDSUIVSAUTER, IDC_FORM3_CMD1,
                                           IDC_FORM3_CMD2,          IDC_FORM3_CMD3};
constexpr std::initializer_list<int> kBack{IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4};

TEST_F(TrackingPass, GoesThroughEightDocumentsWithEveryCommand) {
    sandbox.WriteList(ListOf({"0", "0", "0", "1", "0", "12", "3", "0"}));
    cad.Start();
    StartAndResume();

    ExpectCalls(Together({calls::AtStartUp(), Open(paths[0])}));
    ExpectCurrent(0);
    app.Window("Tarnwick - suivi du travail -");  // shown when the document is
    EXPECT_EQ(app.ShownWindows(), std::vector<std::string>{"Tarnwick - suivi du travail -"});
    ExpectLines({kInProgress, kToDo, kToDo, kDone, kToDo, kSeen, kToDo, kToDo});
    EXPECT_EQ(app.TextOf(IDC_FORM3_CPTFICHIER1), "8");
    ExpectEnabled(kNext, true);
    ExpectEnabled(kBack, true);

    app.Click(IDC_FORM3_CMDSUIV);
    ExpectCalls(Together({{Save(paths[0]), Close(paths[0])}, Open(paths[1])}));
    ExpectCurrent(1);

    app.Click(IDC_FORM3_CMDSUIVQUITTER);
    ExpectCalls(Together({{Close(paths[1])}, Open(paths[2])}));
    ExpectCurrent(2);

    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    ExpectCalls(Together({{Close(paths[2])}, Open(paths[4])}));
    ExpectCurrent(4);
    ExpectLines({kDone, kSeen, kToDo, kDone, kInProgress, kSeen, kToDo, kToDo});

    // Going back closes the document twice: once for itself, once because its name is kept.
    app.Click(IDC_FORM3_CMDPRECEDENT);
    ExpectCalls(Together({{Close(paths[4]), Close(paths[4])}, Open(paths[2])}));
    ExpectCurrent(2);
    ExpectLines({kDone, kSeen, kInProgress, kDone, kToDo, kSeen, kToDo, kToDo});

    app.Click(IDC_FORM3_CMD1);
    ExpectCalls(Together({{Save(paths[2]), Close(paths[2])}, Open(paths[4])}));
    app.Click(IDC_FORM3_CMD2);
    ExpectCalls(Together({{Close(paths[4])}, Open(paths[6])}));
    app.Click(IDC_FORM3_CMD3);
    ExpectCalls(Together({{Close(paths[6])}, Open(paths[7])}));
    ExpectCurrent(7);

    app.Click(IDC_FORM3_CMDSUIV);
    app.WaitForText(IDC_FORM3_TXTETAT, "Aucun");
    ExpectCalls({Save(paths[7]), Close(paths[7])});
    ExpectLines({kDone, kSeen, kDone, kDone, kSeen, kSeen, kToDo, kDone});
    EXPECT_EQ(app.TextOf(IDC_FORM3_NUMFICHCOUR), "8");
    ExpectEnabled(kNext, false);
    ExpectEnabled(kBack, true);

    app.Click(IDC_FORM3_CMD4);
    ExpectCalls(Together({{Close("")}, Open(paths[6])}));
    ExpectCurrent(6);
    ExpectEnabled(kNext, true);

    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"1", "2", "1", "1", "2", "12", "3", "1"}));

    app.Click(IDC_FORM3_CMDSORTIE);
    EXPECT_EQ(app.WaitForExit(), 0);
    ExpectCalls({Close(paths[6])});
    EXPECT_EQ(settings.Get("tarnwick", "startup", "RegCheck"), "1111");
}

TEST_F(TrackingPass, ResumesWhereItStoppedWithWindowAndOptionsAsLeft) {
    sandbox.WriteList(ListOf({"1", "0", "0"}));
    cad.Start();
    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[1])}));

    SetWindowPos(app.Window("Tarnwick - suivi du travail -"), nullptr, 210, 120, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    app.Click(IDC_FORM3_CKSILENT);
    app.Click(IDC_FORM3_CKRECONS2);
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    app.Click(IDC_FORM3_CMDSORTIE);
    EXPECT_EQ(app.WaitForExit(), 0);
    ExpectCalls({Close(paths[1])});
    EXPECT_EQ(sandbox.ReadList(), ListOf({"1", "3", "0"}));
    EXPECT_EQ(settings.Get("tarnwick", "startup", "leftpos3"), "3150");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "toppos3"), "1800");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "regcheck"), "1010");

    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[1], false, calls::Rebuild::TopLevel)}));
    ExpectCurrent(1);
    ExpectLines({kDone, kInProgress, kToDo});
    RECT place;
    GetWindowRect(app.Window("Tarnwick - suivi du travail -"), &place);
    EXPECT_NEAR(place.left, 210, 1);
    EXPECT_NEAR(place.top, 120, 1);
    EXPECT_FALSE(app.Checked(IDC_FORM3_CKSILENT));
    EXPECT_TRUE(app.Checked(IDC_FORM3_CKRECONS));
    EXPECT_FALSE(app.Checked(IDC_FORM3_CKRECONS2));
}

TEST_F(TrackingPass, EndsWithoutSavingWhenClosedByItsFrame) {
    const std::string list = ListOf({"0", "0"});
    sandbox.WriteList(list);
    cad.Start();
    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[0])}));

    app.CloseByFrame("Tarnwick - suivi du travail -");
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_EQ(settings.Get("tarnwick", "startup", "toppos3"), std::nullopt);
    EXPECT_EQ(settings.Get("tarnwick", "startup", "RegCheck"), std::nullopt);
    EXPECT_EQ(sandbox.ReadList(), list);
    ExpectCalls({});
}

TEST_F(TrackingPass, EndsSilentlyOnAnEmptyList) {
    sandbox.WriteList("");
    cad.Start();
    StartAndResume();
    EXPECT_EQ(app.WaitForExit(), 0);
    ExpectCalls(calls::AtStartUp());
    EXPECT_EQ(sandbox.ReadList(), "");
}

TEST_F(TrackingPass, BringsTheCadWindowForwardUnderEitherTitle) {
    sandbox.WriteList(ListOf({"0", "0"}));
    cad.Start({"--title", "bracket"});
    StartAndResume();
    const auto opening = [](const std::string& path) {
        calls::Calls expected = Open(path);
        // The title is asked for twice.
        expected.insert(expected.end() - 1, *(expected.end() - 2));
        return expected;
    };
    ExpectCalls(Together({calls::AtStartUp(), opening(paths[0])}));
    // After the first document our own window is shown, and in front.
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    ExpectCalls(Together({{Close(paths[0])}, opening(paths[1])}));
    WaitFor("the CAD window in front", [this] { return GetForegroundWindow() == cad.Window(); });
}

}  // namespace
}  // namespace driver
