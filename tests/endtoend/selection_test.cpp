#include "scenario.h"

using Selection = Scenario;

TEST_F(Selection, FindsMarksAndLaunches) {
    const std::string nut = sandbox.addDocument("Bâti\\Écrou [M8].SLDPRT");
    const std::string flange = sandbox.addDocument("Bâti\\Brides\\Bride d'entrée.sldprt");
    const std::string frame = sandbox.addDocument("Bâti\\Bâti.SLDASM");
    const std::string press = sandbox.addDocument("Presse.SLDASM");
    sandbox.addDocument("Presse.SLDDRW");
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

// The report of a pass, filtered in a spreadsheet: what that one has left to do.
TEST_F(Selection, ImportsWhatTheReportOfAPassSaysIsLeft) {
    writeListOf({"b;c.SLDDRW", "d.SLDASM"});
    const auto filtered = sandbox.documents() / "reste.csv";
    writeFileBytes(filtered,
                   "\xEF\xBB\xBFN°;Etat;Document;Marqué le;Durée (s);Enregistré;Remarque\r\n"
                   "2;A faire;\"" +
                       paths[0] + "\";;;;\r\n3;A faire;" + paths[1] +
                       ";;;;\r\n4;A faire;absent.SLDPRT\r\n");
    cad.start({"--hidden"});
    app.start();
    app.click(IDC_FORM2_CMDANNULE);
    app.chooseInSystemMenu(kSelection, IDM_FORM1_ORDRE);
    app.chooseInSystemMenu(kSelection, IDM_FORM1_IMPORTER);
    app.openFile("Importer une liste", filtered);
    EXPECT_EQ(app.answerBox(IDOK), "1 ligne laissée de côté :\r\nabsent.SLDPRT : introuvable");
    expectLines(IDC_FORM1_LIST1, {kChosen + paths[0], kChosen + paths[1]});
    app.click(IDC_FORM1_CMD_TRACER);
    app.waitForText(IDC_FORM3_TXTETAT, paths[1]);
    expectList(listLine("0", paths[1]) + listLine("0", paths[0]));
    EXPECT_EQ(settings.get("tarnwick", "options", "ordre").value_or(""), "1");
}
