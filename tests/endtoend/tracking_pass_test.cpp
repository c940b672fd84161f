#include "driver/tooltip.h"
#include "scenario.h"

namespace {

using calls::Close;
using calls::Open;
using calls::Save;
using calls::Together;

struct TrackingPass : Scenario {
    TrackingPass() {
        WriteListOf({"Bâti\\Bride d'entrée.SLDPRT", "Bâti\\Ensemble bâti.SLDASM",
                     "Plans\\Bâti n° 1.SLDDRW", "déjà faite.SLDPRT", "Écrou [M8].SLDPRT",
                     "Zoé & fils.SLDASM"});
    }

    void ExpectLabels(const std::vector<std::string>& labels) const {
        Lines lines;
        for (size_t i = 0; i < labels.size(); ++i)
            lines.push_back("000" + std::to_string(i + 1) + "  " + labels[i] + paths[i]);
        ExpectLines(IDC_FORM3_LIST1, lines);
    }

    /// Presses a list command's button for these lines and answers Yes to what it asks.
    void Command(int button, const std::vector<int>& lines, const std::string& title) const {
        app.Select(IDC_FORM3_LIST1, lines);
        app.Click(button);
        const ModalBox box = app.Box();
        EXPECT_EQ(box.Title(), title);
        box.Answer(IDYES);
    }

    /// The line is current: number, path and selection say so.
    void ExpectCurrent(int line) const {
        app.WaitForText(IDC_FORM3_TXTETAT, paths[static_cast<size_t>(line)]);
        EXPECT_EQ(app.TextOf(IDC_FORM3_NBFICH1), std::to_string(line + 1));
        EXPECT_EQ(app.TextOf(IDC_FORM3_NUMFICHCOUR), std::to_string(line));
        EXPECT_EQ(app.Selected(IDC_FORM3_LIST1), std::vector{line});
    }
};

TEST_F(TrackingPass, GoesThroughTheListBackAndForthAndEditsIt) {
    sandbox.WriteList(ListOf({"0", "0", "0", "1", "0", "2"}));
    cad.Start();
    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[0])}));
    ExpectCurrent(0);
    app.Window(kTracking);  // shown when the document is
    ExpectAlone(kTracking);
    ExpectLabels({kInProgress, kToDo, kToDo, kDone, kToDo, kSeen});
    EXPECT_EQ(app.TextOf(IDC_FORM3_CPTFICHIER1), "6");
    EXPECT_EQ(app.TextOf(IDC_FORM3_CMDSUIV), "1-Sauver+Suiv >>");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM3_CMDFICHIERLISTE)),
              "Sauvegarde de la liste actuelle dans un fichier. Ce fichier pourra être récupéré "
              "lors d'un nouveau démarrage de Tarnwick. ");
    EXPECT_TRUE(app.Enabled(IDC_FORM3_CMDSUIV));

    app.Click(IDC_FORM3_CMDSUIV);
    ExpectCalls(Together({{Save(paths[0]), Close(paths[0])}, Open(paths[1])}));
    app.Click(IDC_FORM3_CMDSUIVQUITTER);
    ExpectCalls(Together({{Close(paths[1])}, Open(paths[2])}));
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    ExpectCalls(Together({{Close(paths[2])}, Open(paths[4])}));
    // Going back closes the document twice: once for itself, once because its name is kept.
    app.Click(IDC_FORM3_CMDPRECEDENT);
    ExpectCalls(Together({{Close(paths[4]), Close(paths[4])}, Open(paths[2])}));
    ExpectCurrent(2);
    app.Click(IDC_FORM3_CMD1);
    ExpectCalls(Together({{Save(paths[2]), Close(paths[2])}, Open(paths[4])}));
    app.Click(IDC_FORM3_CMD3);
    app.WaitForText(IDC_FORM3_TXTETAT, "Aucun");
    ExpectCalls({Close(paths[4])});
    ExpectLabels({kDone, kSeen, kDone, kDone, kToDo, kSeen});
    EXPECT_FALSE(app.Enabled(IDC_FORM3_CMDSUIV));
    app.Click(IDC_FORM3_CMD4);
    ExpectCalls(Together({{Close("")}, Open(paths[4])}));

    Command(IDC_FORM3_CMDCHARAZ, {1}, "Passage en mode 'A Traiter'");
    ExpectCalls(Together({{Close(paths[4])}, Open(paths[1])}));
    ExpectLabels({kDone, kInProgress, kDone, kDone, kToDo, kSeen});
    // What isn't selected stays, and what is to do; the document stays open.
    Command(IDC_FORM3_CMDELIF, {0, 1, 2, 4}, "Elimination 'F' et 'V' ");
    paths = {paths[1], paths[3], paths[4], paths[5]};
    ExpectLabels({kInProgress, kDone, kToDo, kSeen});
    EXPECT_EQ(app.Selected(IDC_FORM3_LIST1), std::vector{0});
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"3", "1", "0", "2"}));
    app.Click(IDC_FORM3_CMDSORTIE);
    ExpectEnd();
    ExpectCalls({Close(paths[0])});
    EXPECT_EQ(settings.Get("tarnwick", "startup", "RegCheck"), "1111");
}

TEST_F(TrackingPass, ResumesWhereItStoppedWithWindowAndOptionsAsLeft) {
    sandbox.WriteList(ListOf({"1", "0", "0"}));
    cad.Start();
    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[1])}));
    MoveTo(app.Window(kTracking), 210, 120);
    app.Click(IDC_FORM3_CKSILENT);
    app.Click(IDC_FORM3_CKRECONS2);
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    app.Click(IDC_FORM3_CMDSORTIE);
    ExpectEnd();
    ExpectCalls({Close(paths[1])});
    EXPECT_EQ(settings.Get("tarnwick", "startup", "leftpos3"), "3150");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "toppos3"), "1800");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "regcheck"), "1010");

    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[1], false, calls::Rebuild::TopLevel)}));
    ExpectLabels({kDone, kInProgress, kToDo});
    const RECT place = PlaceOf(app.Window(kTracking));
    EXPECT_EQ(std::pair(place.left, place.top), std::pair(LONG{210}, LONG{120}));
    // After the first document our own window is in front.
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    WaitFor("the CAD window in front", [this] { return GetForegroundWindow() == cad.Window(); });
    app.Click(IDC_FORM3_CKSILENT);
    ExpectEnd(kTracking);
    EXPECT_EQ(settings.Get("tarnwick", "startup", "regcheck"), "1010");
    EXPECT_EQ(sandbox.ReadList(), ListOf({"1", "3", "0"}));
}

}  // namespace
