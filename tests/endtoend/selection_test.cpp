#include "driver/winapi.h"
#include "scenario.h"
#include "selection/selection_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

class Selection : public Scenario {
 protected:
    void ExpectFound(const Lines& lines) const { ExpectLines(IDC_FORM1_LIST1, lines); }
};

TEST_F(Selection, FindsMarksFiltersAndLaunches) {
    const std::string nut = sandbox.AddDocument("Bâti\\Écrou [M8].SLDPRT");
    const std::string flange = sandbox.AddDocument("Bâti\\Brides\\Bride d'entrée.sldprt");
    const std::string frame = sandbox.AddDocument("Bâti\\Bâti.SLDASM");
    const std::string press = sandbox.AddDocument("Presse.SLDASM");
    sandbox.AddDocument("Presse.SLDDRW");
    sandbox.AddDocument("notice.txt");
    StartInDocuments();
    ExpectAlone(kSelection);
    ExpectFound({kToDo + "Presse.SLDDRW"});
    app.Choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM");
    ExpectFound({kToDo + "Presse.SLDASM"});
    app.Click(IDC_FORM1_SOUSREP);
    ExpectFound({kToDo + press, kToDo + frame, kToDo + nut, kToDo + flange});
    EXPECT_EQ(app.TextOf(IDC_FORM1_CPTFICHIER), "4");

    app.Type(IDC_FORM1_N_FILTRE, "BRIDE");
    app.WaitForText(IDC_FORM1_N_FILTRE, "BRIDE");
    app.Click(IDC_FORM1_CMD_AJO);
    app.WaitForText(IDC_FORM1_NBFICH, "1");
    app.Select(IDC_FORM1_LIST1, {0, 2});
    app.Click(IDC_FORM1_CMDCOCHE);
    app.WaitForText(IDC_FORM1_NBFICH, "3");
    ExpectFound({kChosen + press, kToDo + frame, kChosen + nut, kChosen + flange});

    MoveTo(app.Window(kSelection), 90, 60);
    // A click in the type field, and on to the button.
    Post(app.Window(kSelection), WM_NEXTDLGCTL,
         reinterpret_cast<WPARAM>(app.Control(IDC_FORM1_TYPEF)), TRUE);
    app.Click(IDC_FORM1_CMD_TRACER);
    app.WaitForText(IDC_FORM3_TXTETAT, press);
    ExpectList(ListLine("0", press) + ListLine("0", nut) + ListLine("0", flange));
    EXPECT_EQ(settings.Get("tarnwick", "startup", "leftpos"), "1350");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "toppos"), "900");
    ExpectAlone(kTracking);
}

TEST_F(Selection, ShowsAboutAndEndsSilentlyWhenLaunchedWithoutDocuments) {
    StartInDocuments();
    app.Click(IDC_FORM1_CMDAP);
    app.Window("A Propos de Tarnwick");
    app.Click(IDOK);
    ExpectAlone(kSelection);
    app.Click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_EQ(sandbox.ReadList(), "");
}

}  // namespace
}  // namespace driver
