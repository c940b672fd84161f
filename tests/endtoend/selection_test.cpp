#include "scenario.h"

namespace {

using Selection = Scenario;

TEST_F(Selection, FindsMarksAndLaunches) {
    const std::string nut = sandbox.AddDocument("Bâti\\Écrou [M8].SLDPRT");
    const std::string flange = sandbox.AddDocument("Bâti\\Brides\\Bride d'entrée.sldprt");
    const std::string frame = sandbox.AddDocument("Bâti\\Bâti.SLDASM");
    const std::string press = sandbox.AddDocument("Presse.SLDASM");
    sandbox.AddDocument("Presse.SLDDRW");
    sandbox.AddDocument("notice.txt");
    StartInDocuments();
    ExpectAlone(kSelection);
    ExpectLines(IDC_FORM1_LIST1, {kToDo + "Presse.SLDDRW"});
    app.Choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM");
    ExpectLines(IDC_FORM1_LIST1, {kToDo + "Presse.SLDASM"});
    app.Click(IDC_FORM1_SOUSREP);
    ExpectLines(IDC_FORM1_LIST1, {kToDo + press, kToDo + frame, kToDo + nut, kToDo + flange});
    EXPECT_EQ(app.TextOf(IDC_FORM1_CPTFICHIER), "4");

    app.Select(IDC_FORM1_LIST1, {0, 2, 3});
    app.Click(IDC_FORM1_CMDCOCHE);
    app.WaitForText(IDC_FORM1_NBFICH, "3");
    ExpectLines(IDC_FORM1_LIST1, {kChosen + press, kToDo + frame, kChosen + nut, kChosen + flange});

    // A click in the type field, and on to the button.
    Post(app.Window(kSelection), WM_NEXTDLGCTL,
         reinterpret_cast<WPARAM>(app.Control(IDC_FORM1_TYPEF)), TRUE);
    app.Click(IDC_FORM1_CMD_TRACER);
    app.WaitForText(IDC_FORM3_TXTETAT, press);
    ExpectList(ListLine("0", press) + ListLine("0", nut) + ListLine("0", flange));
    ExpectAlone(kTracking);
}

}  // namespace
