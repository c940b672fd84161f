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

using Desktop = Scenario;

TEST_F(Desktop, ListsTakeTheSpaceOfALargerWindowWithinReach) {
    settings.Set("tarnwick", "startup", "toppos3", "-9000");
    settings.Set("tarnwick", "startup", "leftpos3", "30000");
    WriteListOf({"a.SLDPRT", "b.SLDPRT"});
    cad.Start({"--hidden"});
    StartAndResume();
    HWND window = app.Window(kTracking);
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

TEST_F(Desktop, ShortcutsReachTheListSelectItsLinesAndPressButtons) {
    sandbox.AddDocument("plan.SLDDRW");
    StartInDocuments({"--hidden"});
    app.WaitForText(IDC_FORM1_CPTFICHIER, "1");
    HWND window = app.Window(kSelection);
    WaitFor("the window in front", [&] {
        SetForegroundWindow(window);
        return GetForegroundWindow() == window;
    });
    for (const BYTE key : {'G', 'A', 'D'}) {
        keybd_event(VK_CONTROL, 0, 0, 0);
        keybd_event(key, 0, 0, 0);
        keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
        keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
    }
    app.WaitForText(IDC_FORM1_NBFICH, "1");
}

}  // namespace
}  // namespace driver
