// One list, one program: what a start meets on a list that is open already, and lists of their own.

#include "driver/keys.h"
#include "scenario.h"

namespace {

struct Hold : Scenario {
    Hold() {
        WriteListOf({"a.SLDPRT", "b.SLDPRT"});
        cad.Start();
    }

    std::string InDirectory(const char* name) const {
        return Utf8((sandbox.Directory() / Wide(name)).wstring());
    }
    bool Held(const char* name) const {
        return ReadFileBytes(sandbox.Directory() / Wide(name)).has_value();
    }

    /// A second start that finds the list open ends at once.
    void ExpectSecondStartEnds(const std::string& list = ".\\Documents\\..\\TARNWICK.LST") {
        other.Start({list});
        EXPECT_EQ(other.WaitForExit(), 0);
    }

    AppDriver other{sandbox};
};

TEST_F(Hold, SecondStartBringsTheFirstForward) {
    app.Start();
    HWND prompt = app.Window(kPrompt);
    ShowWindow(prompt, SW_MINIMIZE);
    BringForward(cad.Window());
    ExpectSecondStartEnds();
    WaitFor("the window in front", [&] { return GetForegroundWindow() == prompt; });
    EXPECT_FALSE(IsIconic(prompt));
    ExpectCalls(calls::AtStartUp());

    std::filesystem::remove(sandbox.ListFile());
    app.Click(IDC_FORM2_CMDOK);
    app.Box();
    BringForward(cad.Window());
    ExpectSecondStartEnds();
    WaitFor("the box in front", [] { return ClassOf(GetForegroundWindow()) == "#32770"; });
    ExpectFatalError(53);
    EXPECT_EQ(cad.Calls(), calls::AtStartUp());
}

TEST_F(Hold, OneOfTwoStartsAtTheSameMomentGetsTheList) {
    const auto ends = [&](const AppDriver& one) { return !one.Running(); };
    for (int i = 0; i < 5; ++i) {
        app.Start();
        other.Start();
        WaitFor("one of two to end", [&] { return ends(app) || ends(other); });
        AppDriver& ended = ends(app) ? app : other;
        AppDriver& stays = ends(app) ? other : app;
        EXPECT_EQ(ended.WaitForExit(), 0);
        stays.Window(kPrompt);
        EXPECT_TRUE(Held("tarnwick.verrou"));
        // Whatever ends a program, its hold goes with it.
        stays.Kill();
        EXPECT_FALSE(Held("tarnwick.verrou"));
    }
}

TEST_F(Hold, ListsOfTheirOwnAreOpenSideBySide) {
    const std::string summer = InDirectory("Été 2026.lst");
    WriteFileBytes(Wide(summer), ListOf({"0", "0"}));
    app.Start();
    EXPECT_EQ(app.TextOf(IDC_FORM2_LABEL1), "Un fichier LISTE  existe déja");
    app.Click(IDC_FORM2_CMDANNULE);
    app.Window(kSelection);
    other.Start({"Été 2026.lst"});
    other.Click(IDC_FORM2_CMDOK);
    other.WaitForText(IDC_FORM3_TXTETAT, paths[0]);
    EXPECT_TRUE(app.Running() && Held("tarnwick.verrou") && Held("Été 2026.verrou"));
    other.Click(IDC_FORM3_CMDFICHIERLISTE);
    WaitFor("the other list to be saved",
            [&] { return ReadFileBytes(Wide(summer))->starts_with("3"); });
    ExpectList(ListOf({"0", "0"}));
    ExpectEnd(kSelection);
    EXPECT_TRUE(!Held("tarnwick.verrou") && Held("Été 2026.verrou"));
}

TEST_F(Hold, ListOpenOnAnotherMachineIsLeftAlone) {
    const std::wstring file = Wide(InDirectory("tarnwick.verrou"));
    HANDLE held = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_HIDDEN, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const std::string names = "zoé\r\nPC-12\r\n";
    DWORD written = 0;
    WriteFile(held, names.data(), static_cast<DWORD>(names.size()), &written, nullptr);
    app.Start();
    const std::string text = ExpectFatalError(70);
    EXPECT_TRUE(text.ends_with("La liste " + InDirectory("tarnwick.lst") +
                               " est déjà ouverte par zoé sur PC-12."))
        << text;
    EXPECT_EQ(cad.Calls(), calls::Calls{});
    // The file stays, as after a power cut; nobody has it any more.
    CloseHandle(held);
    app.Start();
    app.Window(kPrompt);
}

TEST_F(Hold, ListWhereNothingCanBeWrittenIsOpenAllTheSame) {
    const char* nobodyWrites = "Z:\\sys\\kernel";
    if (!std::filesystem::exists(nobodyWrites)) GTEST_SKIP() << "no such directory is known here";
    const std::string unwritable = std::string(nobodyWrites) + "\\liste.lst";
    app.Start({unwritable});
    app.Window(kSelection);
    ExpectSecondStartEnds(unwritable);
    EXPECT_TRUE(app.Running());
}

}  // namespace
