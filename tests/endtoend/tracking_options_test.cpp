// The pass led from where the work is: keys that act in the CAD application, its window brought
// forward whatever its release, the report.

#include "driver/keys.h"
#include "scenario.h"

struct TrackingOptions : Scenario {
    void expectOption(const char* key, const char* value) const {
        const auto read = [&] { return settings.get("tarnwick", "options", key).value_or(""); };
        EXPECT_EQ(eventually<std::string>(value, read), value) << key;
    }

    bool isTopmost() const {
        return (GetWindowLongW(app.window(kTracking), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    }

    /// Waits for this to be the last call of a command, and for the command's end.
    void waitForLastCall(const std::string& call) const {
        waitFor(call, [&] { return cad.calls().back() == call; });
        app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    }

    /// Presses one of the keys in the digit row, in whichever program is in front.
    static void pressDigit(WORD digit) { pressKeys({VK_CONTROL, VK_SHIFT, digit}); }
};

TEST_F(TrackingOptions, KeysLeadThePassInARecentReleaseThatKeepsTheKeyboard) {
    settings.set("tarnwick", "options", "touches", "1");
    resume({"a.SLDPRT", "b;c.SLDPRT", "d.SLDPRT"},
           {"--revision", "28.1", "--delay", "OpenDoc6:300"});
    waitUntilOpen(paths[0]);
    HWND window = app.window(kTracking);
    for (const int item : {IDM_FORM3_PREMIERPLAN, IDM_FORM3_TOUJOURSVISIBLE}) {
        app.chooseInSystemMenu(kTracking, item);
    }
    expectOption("toujoursvisible", "1");
    EXPECT_TRUE(isTopmost());

    bringForward(cad.window());
    pressKeys({VK_CONTROL, VK_SHIFT, '1'}, 4);  // held
    pressDigit('2');                            // impatient
    app.waitForText(IDC_FORM3_TXTETAT, paths[1]);
    waitForLastCall("b;c.SLDPRT.ViewZoomtofit2()");
    EXPECT_EQ(GetForegroundWindow(), cad.window());

    ShowWindow(cad.window(), SW_MINIMIZE);
    bringForward(window);
    pressDigit('3');
    waitForLastCall("d.SLDPRT.ViewZoomtofit2()");
    waitFor("the CAD window in front again",
            [&] { return GetForegroundWindow() == cad.window() && !IsIconic(cad.window()); });
    pressDigit('4');
    waitForLastCall("b;c.SLDPRT.ViewZoomtofit2()");
    const std::string report = exportReport();
    EXPECT_NE(report.find("\r\n1;Fait;" + paths[0] + ";20"), std::string::npos) << report;
    EXPECT_NE(report.find(";oui;\r\n2;En cours;\"" + paths[1] + "\";;"), std::string::npos)
        << report;

    app.chooseInSystemMenu(kTracking, IDM_FORM3_TOUJOURSVISIBLE);
    expectOption("toujoursvisible", "0");
    EXPECT_FALSE(isTopmost());
    expectEnd(kTracking);
}
