#include "scenario.h"

namespace {

using Selection = Scenario;

TEST_F(Selection, FindsMarksAndLaunches) {
    const std::string nut = sandbox.addDocument("Bâti\\Écrou [M8].SLDPRT");
    const std::string flange = sandbox.addDocument("Bâti\\Brides\\Bride d'entrée.sldprt");
    const std::string frame = sandbox.addDocument("Bâti\\Bâti.SLDASM");
    const std::string press = sandbox.addDocument("Presse.SLDASM");
    sandbox.addDocument("Presse.SLDDRW");
    sandbox.addDocument("notice.txt");
    startInDocuments();
    expectAlone(kSelection);
    expectLines(IDC_FORM1_LIST1, {kToDo + "Presse.SLDDRW"});
    app.choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM");
    expectLines(IDC_FORM1_LIST1, {kToDo + "Presse.SLDASM"});
    app.click(IDC_FORM1_SOUSREP);
    expectLines(IDC_FORM1_LIST1, {kToDo + press, kToDo + frame, kToDo + nut, kToDo + flange});
    EXPECT_EQ(app.textOf(IDC_FORM1_CPTFICHIER), "4");

    app.select(IDC_FORM1_LIST1, {0, 2, 3});
    app.click(IDC_FORM1_CMDCOCHE);
    app.waitForText(IDC_FORM1_NBFICH, "3");
    expectLines(IDC_FORM1_LIST1, {kChosen + press, kToDo + frame, kChosen + nut, kChosen + flange});

    // A click in the type field, and on to the button.
    post(app.window(kSelection), WM_NEXTDLGCTL,
         reinterpret_cast<WPARAM>(app.control(IDC_FORM1_TYPEF)), TRUE);
    app.click(IDC_FORM1_CMD_TRACER);
    app.waitForText(IDC_FORM3_TXTETAT, press);
    expectList(listLine("0", press) + listLine("0", nut) + listLine("0", flange));
    expectAlone(kTracking);
}

}  // namespace
