// A pass that goes on alone, and the way back.

#include "driver/keys.h"
#include "scenario.h"
#include "tracking/alone_ids.h"

struct Alone : Scenario {
    /// Resumes a list of so many documents in a session that opens them slowly, and goes on alone.
    void begin(int count, const std::string& said) {
        std::vector<std::string> names;
        for (int i = 0; i < count; ++i) names.push_back(std::to_string(i) + ".SLDPRT");
        auto options = saidOf(said);
        options.insert(options.end(), {"--delay", "OpenDoc6:100"});
        resume(names, options);
        app.waitForText(IDC_FORM3_TXTETAT, paths[0]);
        goOn();
    }
    std::string goOn() {
        app.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
        EXPECT_EQ(app.box().defaultButton(), IDNO);
        const std::string question = app.answerBox(IDYES);
        progress = app.window("Tarnwick - Continuer seul");
        return question;
    }

    HWND progress = nullptr;
};

TEST_F(Alone, GoesToTheEndPastWhatTheSessionRefusesAndBackByAKey) {
    begin(10, "3.SLDPRT;refuse=2\n5.SLDPRT;save=1\n");
    EXPECT_TRUE(GetForegroundWindow() != progress);
    EXPECT_EQ(app.answerBox(IDOK),
              "Passage terminé.\r\nEnregistrés : 8\r\nNon ouverts : 1\r\nNon enregistrés : 1");
    EXPECT_FALSE(IsWindow(progress));
    app.click(IDC_FORM3_CMDFICHIERLISTE);
    expectList(listOf({"1", "1", "1", "0", "1", "0", "1", "1", "1", "1"}));
    bringForward(app.window(kTracking));
    pressKeys({VK_CONTROL, 'Z'});
    app.waitForText(IDC_FORM3_TXTETAT, paths[9]);
}

TEST_F(Alone, StopsWhenAButtonIsPressedDuringACallAndEndsByTheFrame) {
    begin(200, "");
    waitFor("the third document", [&] { return app.textOf(IDC_FORM3_NBFICH1) > "2"; });
    app.click(IDC_ALONE_CMDARRETER);
    EXPECT_EQ(app.answerBox(IDOK).find("Passage interrompu.\r\nEnregistrés : "), 0U);
    const auto calls = cad.calls();
    EXPECT_EQ(calls.back().find("closedoc"), std::string::npos) << calls.back();
    app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    EXPECT_EQ(cad.calls().size(), calls.size());

    EXPECT_EQ(goOn().find("Enregistrer et fermer 1"), 0U);
    expectEnd(kTracking);
}
