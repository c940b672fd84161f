// One list, one program: what a start meets on a list that is open already, and lists of their own.

#include "driver/keys.h"
#include "scenario.h"

struct Hold : Scenario {
    Hold() {
        writeListOf({"a.SLDPRT", "b.SLDPRT"});
        cad.start();
    }

    bool held(const char* name) const {
        return readFileBytes(sandbox.directory() / wide(name)).has_value();
    }

    /// A second start that finds the list open ends at once.
    void expectSecondStartEnds() {
        bringForward(cad.window());
        other.start({".\\Documents\\..\\TARNWICK.LST"});
        EXPECT_EQ(other.waitForExit(), 0);
    }

    AppDriver other{sandbox};
};

TEST_F(Hold, SecondStartBringsTheFirstForward) {
    app.start();
    HWND prompt = app.window(kPrompt);
    ShowWindow(prompt, SW_MINIMIZE);
    expectSecondStartEnds();
    waitFor("the window in front", [&] { return GetForegroundWindow() == prompt; });
    EXPECT_FALSE(IsIconic(prompt));
    std::filesystem::remove(sandbox.listFile());
    app.click(IDC_FORM2_CMDOK);
    app.box();
    expectSecondStartEnds();
    waitFor("the box in front", [] { return classOf(GetForegroundWindow()) == "#32770"; });
    expectFatalError(53);
    EXPECT_EQ(cad.calls(), calls::atStartUp());
}

TEST_F(Hold, OneOfTwoStartsAtTheSameMomentGetsTheList) {
    const auto ends = [&](const AppDriver& one) { return !one.running(); };
    for (int i = 0; i < 5; ++i) {
        app.start();
        other.start();
        waitFor("one of two to end", [&] { return ends(app) || ends(other); });
        AppDriver& stays = ends(app) ? other : app;
        EXPECT_EQ((ends(app) ? app : other).waitForExit(), 0);
        stays.window(kPrompt);
        EXPECT_TRUE(held("tarnwick.verrou"));
        // Whatever ends a program, its hold goes with it.
        stays.kill();
        EXPECT_FALSE(held("tarnwick.verrou"));
    }
}

TEST_F(Hold, ListsOfTheirOwnAreOpenSideBySide) {
    const auto summer = sandbox.directory() / L"Été 2026.lst";
    writeFileBytes(summer, listOf({"0", "0"}));
    app.start();
    EXPECT_EQ(app.textOf(IDC_FORM2_LABEL1), "Un fichier LISTE  existe déja");
    app.click(IDC_FORM2_CMDANNULE);
    app.window(kSelection);
    other.start({"Été 2026.lst"});
    other.click(IDC_FORM2_CMDOK);
    other.waitForText(IDC_FORM3_TXTETAT, paths[0]);
    EXPECT_TRUE(app.running() && held("tarnwick.verrou") && held("Été 2026.verrou"));
    other.click(IDC_FORM3_CMDFICHIERLISTE);
    waitFor("the other list to be saved", [&] { return readFileBytes(summer)->starts_with("3"); });
    expectList(listOf({"0", "0"}));
    expectEnd(kSelection);
    EXPECT_TRUE(!held("tarnwick.verrou") && held("Été 2026.verrou"));
}
