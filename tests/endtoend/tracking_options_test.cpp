// The pass led from where the work is: keys that act in the CAD application, its window brought
// forward whatever its release, the report.

#include "driver/keys.h"
#include "driver/winapi.h"
#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

class TrackingOptions : public Scenario {
 protected:
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

    /// Exports the report to where the dialog proposes; gives its lines.
    std::vector<std::string> Export() const {
        ChooseInMenu(IDM_FORM3_RAPPORT);
        app.SaveAsProposed("Exporter le rapport", "tarnwick-rapport.csv");
        std::optional<std::string> bytes;
        WaitFor("the report", [&] {
            bytes = ReadFileBytes(sandbox.Directory() / "tarnwick-rapport.csv");
            return bytes.has_value();
        });
        std::vector<std::string> lines;
        for (size_t at = 0; at < bytes->size(); at = bytes->find("\r\n", at) + 2)
            lines.push_back(bytes->substr(at, bytes->find("\r\n", at) - at));
        return lines;
    }

    /// Presses one of the keys in the digit row, in whichever program is in front.
    static void PressDigit(WORD digit) { PressKeys({VK_CONTROL, VK_SHIFT, digit}); }
};

/// One of the keys, taken by another program: this one.
class TakenKey {
 public:
    explicit TakenKey(UINT digit) {
        taken_ = RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_SHIFT, digit) != FALSE;
    }
    ~TakenKey() {
        if (taken_) UnregisterHotKey(nullptr, 1);
    }
    TakenKey(const TakenKey&) = delete;
    TakenKey& operator=(const TakenKey&) = delete;

    bool WasFree() const { return taken_; }

 private:
    bool taken_;
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

    const auto report = Export();
    ASSERT_EQ(report.size(), 4U);
    EXPECT_EQ(report[0], "\xEF\xBB\xBFN°;Etat;Document;Marqué le;Durée (s);Enregistré");
    EXPECT_TRUE(report[1].starts_with("1;Fait;" + paths[0] + ";20")) << report[1];
    EXPECT_TRUE(report[1].ends_with(";oui")) << report[1];
    EXPECT_TRUE(report[2].starts_with("2;En cours;\"" + paths[1] + "\";;")) << report[2];

    EXPECT_FALSE(TakenKey('1').WasFree());
    ChooseInMenu(IDM_FORM3_TOUCHES);
    ChooseInMenu(IDM_FORM3_TOUJOURSVISIBLE);
    ExpectOption("toujoursvisible", "0");
    EXPECT_FALSE(IsTopmost());
    EXPECT_TRUE(TakenKey('1').WasFree());
}

TEST_F(TrackingOptions, ATakenKeyIsNamedAndNoneIsActive) {
    settings.Set("tarnwick", "options", "touches", "1");
    settings.Set("tarnwick", "options", "toujoursvisible", "1");
    {
        const TakenKey taken('3');
        Resume({"--hidden"});
        EXPECT_NE(app.Box().Text().find("Ctrl+Maj+3\r\n"), std::string::npos);
        app.Box().Answer(IDOK);
        EXPECT_TRUE(IsTopmost());
        EXPECT_TRUE(TakenKey('2').WasFree());
    }
    ChooseInMenu(IDM_FORM3_TOUCHES);
    WaitFor("the keys taken", [] { return !TakenKey('2').WasFree(); });
    app.CloseByFrame(kTracking);
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_TRUE(TakenKey('2').WasFree());
}

}  // namespace
}  // namespace driver
