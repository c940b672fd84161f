#include "driver/tooltip.h"
#include "scenario.h"

using calls::closing;
using calls::opening;
using calls::saving;
using calls::together;

struct TrackingPass : Scenario {
    void expectLabels(const std::vector<std::string>& labels) const {
        Lines lines;
        for (size_t i = 0; i < labels.size(); ++i) {
            lines.push_back("000" + std::to_string(i + 1) + "  " + labels[i] + paths[i]);
        }
        expectLines(IDC_FORM3_LIST1, lines);
    }

    /// Presses a button, after which the session receives these calls.
    void press(int button, const std::vector<calls::Calls>& expected) {
        app.click(button);
        expectCalls(together(expected));
    }
    /// Presses a list command's button for these lines and answers Yes to what it asks.
    void command(int button, const std::vector<int>& lines) const {
        app.select(IDC_FORM3_LIST1, lines);
        app.click(button);
        app.answerBox(IDYES);
    }

    /// The line is current: number, path and selection say so.
    void expectCurrent(int line) const {
        app.waitForText(IDC_FORM3_TXTETAT, paths[static_cast<size_t>(line)]);
        EXPECT_EQ(app.textOf(IDC_FORM3_NBFICH1), std::to_string(line + 1));
        EXPECT_EQ(app.textOf(IDC_FORM3_NUMFICHCOUR), std::to_string(line));
        EXPECT_EQ(app.selected(IDC_FORM3_LIST1), std::vector{line});
    }
};

TEST_F(TrackingPass, GoesThroughTheListBackAndForthAndEditsIt) {
    writeListOf({"Bâti\\Bride d'entrée.SLDPRT", "Bâti\\Ensemble bâti.SLDASM",
                 "Plans\\Bâti n° 1.SLDDRW", "déjà faite.SLDPRT", "Écrou [M8].SLDPRT",
                 "Zoé & fils.SLDASM"});
    sandbox.writeList(listOf({"0", "0", "0", "1", "0", "2"}));
    cad.start();
    startAndResume();
    expectCalls(together({calls::atStartUp(), opening(paths[0])}));
    expectCurrent(0);
    app.window(kTracking);  // shown when the document is
    expectAlone(kTracking);
    expectLabels({kInProgress, kToDo, kToDo, kDone, kToDo, kSeen});
    EXPECT_EQ(app.textOf(IDC_FORM3_CPTFICHIER1), "6");
    EXPECT_EQ(app.textOf(IDC_FORM3_CMDSUIV), "1-Sauver+Suiv >>");
    EXPECT_EQ(toolTipOf(app.control(IDC_FORM3_CMDFICHIERLISTE)),
              "Sauvegarde de la liste actuelle dans un fichier. Ce fichier pourra être récupéré "
              "lors d'un nouveau démarrage de Tarnwick. ");

    press(IDC_FORM3_CMDSUIV, {{saving(paths[0]), closing(paths[0])}, opening(paths[1])});
    press(IDC_FORM3_CMDSUIVQUITTER, {{closing(paths[1])}, opening(paths[2])});
    press(IDC_FORM3_CMDSUIVSAUTER, {{closing(paths[2])}, opening(paths[4])});
    // Going back closes the document twice: once for itself, once because its name is kept.
    press(IDC_FORM3_CMDPRECEDENT, {{closing(paths[4]), closing(paths[4])}, opening(paths[2])});
    expectCurrent(2);
    press(IDC_FORM3_CMD1, {{saving(paths[2]), closing(paths[2])}, opening(paths[4])});
    press(IDC_FORM3_CMD3, {{closing(paths[4])}});
    app.waitForText(IDC_FORM3_TXTETAT, "Aucun");
    expectLabels({kDone, kSeen, kDone, kDone, kToDo, kSeen});
    EXPECT_FALSE(app.enabled(IDC_FORM3_CMDSUIV));
    press(IDC_FORM3_CMD4, {{closing("")}, opening(paths[4])});

    command(IDC_FORM3_CMDCHARAZ, {1});
    expectCalls(together({{closing(paths[4])}, opening(paths[1])}));
    // What isn't selected stays, and what is to do; the document stays open.
    command(IDC_FORM3_CMDELIF, {0, 1, 2, 4});
    paths = {paths[1], paths[3], paths[4], paths[5]};
    expectLabels({kInProgress, kDone, kToDo, kSeen});
    EXPECT_EQ(app.selected(IDC_FORM3_LIST1), std::vector{0});
    app.click(IDC_FORM3_CMDFICHIERLISTE);
    expectList(listOf({"3", "1", "0", "2"}));
    press(IDC_FORM3_CMDSORTIE, {{closing(paths[0])}});
    expectEnd();
    EXPECT_EQ(settings.get("tarnwick", "startup", "RegCheck"), "1111");
}
