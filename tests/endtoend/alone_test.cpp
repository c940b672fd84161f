// A pass that goes on alone, and the way back.

#include "driver/keys.h"
#include "scenario.h"
#include "tracking/alone_ids.h"

namespace {

struct Alone : Scenario {
    /// Starts the session and the program on a list of so many documents, and goes on alone.
    void goAlone(int count, const std::string& said, std::vector<std::string> cadOptions = {}) {
        std::vector<std::string> names;
        for (int i = 0; i < count; ++i) names.push_back(std::to_string(i) + ".SLDPRT");
        writeListOf(names);
        const auto file = sandbox.directory() / "documents.txt";
        writeFileBytes(file, said);
        cadOptions.insert(cadOptions.end(), {"--documents", utf8(file.wstring())});
        cad.start(cadOptions);
        startAndResume();
        app.waitForText(IDC_FORM3_TXTETAT, paths[0]);
        app.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
        question = app.box().text();
        EXPECT_EQ(app.box().defaultButton(), IDNO);
        app.box().answer(IDYES);
    }

    std::string endBox() const {
        const ModalBox box = app.box();
        const std::string text = box.text();
        box.answer(IDOK);
        return text;
    }

    std::string question;
};

TEST_F(Alone, GoesToTheEndPastWhatTheSessionRefusesAndBackByAKey) {
    goAlone(10, "3.SLDPRT;refuse=2\n5.SLDPRT;save=1\n", {"--delay", "OpenDoc6:100"});
    HWND progress = app.window("Tarnwick - Continuer seul");
    EXPECT_TRUE(GetForegroundWindow() != progress);
    EXPECT_EQ(
        question,
        "Enregistrer et fermer 10 documents l'un après l'autre, jusqu'à la fin de la liste ?");
    EXPECT_EQ(endBox(),
              "Passage terminé.\r\nEnregistrés : 8\r\nNon ouverts : 1\r\nNon enregistrés : 1");
    EXPECT_FALSE(IsWindow(progress));
    Lines lines;
    for (int i = 0; i < 10; ++i) {
        const std::string& state = i == 3 || i == 5 ? kToDo : kDone;
        const std::string number = std::to_string(i + 1);
        lines.push_back(std::string(4 - number.size(), '0') + number + "  " + state + paths[i]);
    }
    expectLines(IDC_FORM3_LIST1, lines);
    app.waitForText(IDC_FORM3_TXTETAT, "Aucun");
    bringForward(app.window(kTracking));
    pressKeys({VK_CONTROL, 'Z'});
    app.waitForText(IDC_FORM3_TXTETAT, paths[9]);
}

TEST_F(Alone, StopsWhenAButtonIsPressedDuringACallAndEndsByTheFrame) {
    goAlone(200, "", {"--delay", "OpenDoc6:150"});
    waitFor("the third document", [&] { return app.textOf(IDC_FORM3_NBFICH1) > "2"; });
    app.click(IDC_ALONE_CMDARRETER);
    EXPECT_EQ(endBox().find("Passage interrompu.\r\nEnregistrés : "), 0U);
    const auto calls = cad.calls();
    EXPECT_EQ(calls.back().find("closedoc"), std::string::npos) << calls.back();
    app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    EXPECT_EQ(cad.calls().size(), calls.size());

    app.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
    app.box().answer(IDYES);
    app.window("Tarnwick - Continuer seul");
    app.click(IDC_FORM3_CMDPRECEDENT);
    EXPECT_EQ(endBox().find("Passage interrompu."), 0U);
    app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);

    app.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
    app.box().answer(IDYES);
    app.window("Tarnwick - Continuer seul");
    expectEnd(kTracking);
}

}  // namespace
