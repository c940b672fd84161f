// What a window owes its user on any desktop: size, place, keyboard.

#include <algorithm>

#include "driver/winapi.h"
#include "scenario.h"
#include "selection/selection_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

SIZE SizeOf(HWND window) {
    const RECT place = PlaceOf(window);
    return {place.right - place.left, place.bottom - place.top};
}

class Desktop : public Scenario {
 protected:
    /// Resumes a list of two documents.
    HWND StartTracking() {
        WriteListOf({"a.SLDPRT", "b.SLDPRT"});
        cad.Start({"--hidden"});
        StartAndResume();
        return app.Window(kTracking);
    }

    /// Presses a key with Ctrl held, for the window that the user works in.
    void PressWithControl(HWND window, BYTE key) {
        WaitFor("the window in front", [&] {
            SetForegroundWindow(window);
            return GetForegroundWindow() == window;
        });
        keybd_event(VK_CONTROL, 0, 0, 0);
        keybd_event(key, 0, 0, 0);
        keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
        keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
    }
};

TEST_F(Desktop, ListsTakeTheSpaceOfALargerWindowWithinReach) {
    settings.Set("tarnwick", "startup", "toppos3", "-9000");
    settings.Set("tarnwick", "startup", "leftpos3", "30000");
    HWND window = StartTracking();
    EXPECT_GE(PlaceOf(window).top, 0);
    EXPECT_LE(PlaceOf(window).left, GetSystemMetrics(SM_CXSCREEN) - 100);

    HWND list = app.Control(IDC_FORM3_LIST1);
    const SIZE smallest = SizeOf(window);
    const SIZE listBefore = SizeOf(list);
    for (const int more : {90, -100}) {
        SetWindowPos(window, nullptr, 0, 0, smallest.cx + more, smallest.cy + more,
                     SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_EQ(SizeOf(window).cx, smallest.cx + std::max(more, 0));
        EXPECT_EQ(SizeOf(list).cx, listBefore.cx + std::max(more, 0));
        EXPECT_EQ(SizeOf(list).cy, listBefore.cy + std::max(more, 0));
    }
}

TEST_F(Desktop, ShortcutsPressButtonsThatAreEnabled) {
    HWND window = StartTracking();
    int depth = 0;
    // A press while a command runs is none; a command that is posted waits for the end of it.
    const auto waitForTheEnd = [&] {
        app.Click(IDC_FORM3_CMDPLUS1);
        app.WaitForText(IDC_FORM3_NNIVEAU1, std::to_string(++depth));
    };
    for (int i = 0; i < 2; ++i) {
        waitForTheEnd();
        PressWithControl(window, '3');
        app.WaitForText(IDC_FORM3_NBFICH1, "2");
    }
    app.WaitForText(IDC_FORM3_TXTETAT, "Aucun");
    waitForTheEnd();
    const calls::Calls before = cad.Calls();
    PressWithControl(window, '1');
    PressWithControl(window, VK_ADD);
    app.WaitForText(IDC_FORM3_NNIVEAU1, std::to_string(depth + 1));
    EXPECT_EQ(cad.Calls(), before);
}

TEST_F(Desktop, SelectingAllLinesByKeyCountsAsAClick) {
    sandbox.AddDocument("plan.SLDDRW");
    StartInDocuments({"--hidden"});
    app.WaitForText(IDC_FORM1_CPTFICHIER, "1");
    for (const BYTE key : {'G', 'A', 'D'}) PressWithControl(app.Window(kSelection), key);
    app.WaitForText(IDC_FORM1_NBFICH, "1");
}

}  // namespace
}  // namespace driver
