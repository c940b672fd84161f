// The pass led from where the work is: keys that act in the CAD application, its window brought
// forward whatever its release, the report.

#include "driver/keys.h"
#include "scenario.h"

namespace {

struct TrackingOptions : Scenario {
    void Resume(const std::vector<std::string>& cadOptions) {
        WriteListOf({"a.SLDPRT", "b;c.SLDPRT", "d.SLDPRT"});
        cad.Start(cadOptions);
        StartAndResume();
    }

    void ChooseInMenu(int item) const { app.ChooseInSystemMenu(kTracking, item); }

    void ExpectOption(const char* key, const char* value) const {
        const auto read = [&] { return settings.Get("tarnwick", "options", key).value_or(""); };
        EXPECT_EQ(Eventually<std::string>(value, read), value) << key;
    }

    bool IsTopmost() const {
        return (GetWindowLongW(app.Window(kTracking), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    }

    /// Waits for this to be the last call of a command, and for the command's end.
    void WaitForLastCall(const std::string& call) const {
        WaitFor(call, [&] { return cad.Calls().back() == call; });
        app.WaitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    }

    /// Exports the report to where the dialog proposes, and gives it.
    std::string Export() const {
        ChooseInMenu(IDM_FORM3_RAPPORT);
        app.SaveAsProposed("Exporter le rapport", "tarnwick-rapport.csv");
        std::optional<std::string> bytes;
        WaitFor("the report", [&] {
            bytes = ReadFileBytes(sandbox.Directory() / "tarnwick-rapport.csv");
            return bytes.has_value();
        });
        return *bytes;
    }

    /// Presses one of the keys in the digit row, in whichever program is in front.
    static void PressDigit(WORD digit) { PressKeys({VK_CONTROL, VK_SHIFT, digit}); }

    /// Takes one of the keys as another program does; false when it is taken already.
    static bool TakeKey(UINT digit) {
        return RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_SHIFT, digit) != FALSE;
    }
    static bool KeyIsFree(UINT digit) {
        return TakeKey(digit) && UnregisterHotKey(nullptr, 1) != FALSE;
    }
};

TEST_F(TrackingOptions, KeysLeadThePassInARecentReleaseThatKeepsTheKeyboard) {
    Resume({"--revision", "28.1", "--delay", "OpenDoc6:300"});
    HWND window = app.Window(kTracking);
    ChooseInMenu(IDM_FORM3_TOUCHES);
    ChooseInMenu(IDM_FORM3_PREMIERPLAN);
    ChooseInMenu(IDM_FORM3_TOUJOURSVISIBLE);
    ExpectOption("toujoursvisible", "1");
    EXPECT_TRUE(IsTopmost());

    BringForward(cad.Window());
    PressKeys({VK_CONTROL, VK_SHIFT, '1'}, 4);  // held
    PressDigit('2');                            // impatient
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    WaitForLastCall("b;c.SLDPRT.ViewZoomtofit2()");
    EXPECT_EQ(GetForegroundWindow(), cad.Window());

    ShowWindow(cad.Window(), SW_MINIMIZE);
    BringForward(window);
    PressDigit('3');
    WaitForLastCall("d.SLDPRT.ViewZoomtofit2()");
    WaitFor("the CAD window in front again",
            [&] { return GetForegroundWindow() == cad.Window() && !IsIconic(cad.Window()); });
    PressDigit('4');
    WaitForLastCall("b;c.SLDPRT.ViewZoomtofit2()");
    ExpectLines(IDC_FORM3_LIST1, {"0001  " + kDone + paths[0], "0002  " + kInProgress + paths[1],
                                  "0003  " + kToDo + paths[2]});

    const std::string report = Export();
    EXPECT_NE(report.find("\r\n1;Fait;" + paths[0] + ";20"), std::string::npos) << report;
    EXPECT_NE(report.find(";oui\r\n2;En cours;\"" + paths[1] + "\";;"), std::string::npos)
        << report;

    EXPECT_FALSE(KeyIsFree('1'));
    ChooseInMenu(IDM_FORM3_TOUCHES);
    ChooseInMenu(IDM_FORM3_TOUJOURSVISIBLE);
    ExpectOption("toujoursvisible", "0");
    EXPECT_FALSE(IsTopmost());
    EXPECT_TRUE(KeyIsFree('1'));
}

TEST_F(TrackingOptions, ATakenKeyIsNamedAndNoneIsActive) {
    settings.Set("tarnwick", "options", "touches", "1");
    settings.Set("tarnwick", "options", "toujoursvisible", "1");
    ASSERT_TRUE(TakeKey('3'));
    Resume({"--hidden"});
    EXPECT_NE(app.Box().Text().find("Ctrl+Maj+3\r\n"), std::string::npos);
    app.Box().Answer(IDOK);
    EXPECT_TRUE(IsTopmost());
    UnregisterHotKey(nullptr, 1);
    EXPECT_TRUE(KeyIsFree('2'));
    ChooseInMenu(IDM_FORM3_TOUCHES);
    WaitFor("the keys taken", [] { return !KeyIsFree('2'); });
    ExpectEnd(kTracking);
    EXPECT_TRUE(KeyIsFree('2'));
}

}  // namespace
