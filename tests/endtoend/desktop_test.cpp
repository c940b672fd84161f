// What a window owes its user on any desktop: size, place, keyboard.

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
    /// Resumes a list of three documents in this state.
    HWND StartTracking(const std::string& state = "0") {
        WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT"});
        sandbox.WriteList(ListOf({state, state, state}));
        cad.Start({"--hidden"});
        StartAndResume();
        return app.Window(kTracking);
    }

    void Resize(HWND window, SIZE size) {
        SetWindowPos(window, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
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
    const RECT place = PlaceOf(window);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.left, GetSystemMetrics(SM_CXSCREEN) - 100);

    HWND list = app.Control(IDC_FORM3_LIST1);
    HWND button = app.Control(IDC_FORM3_CMDSORTIE);
    const SIZE smallest = SizeOf(window);
    const SIZE listBefore = SizeOf(list);
    const RECT buttonBefore = PlaceOf(button);
    Resize(window, {smallest.cx + 90, smallest.cy + 70});
    EXPECT_EQ(SizeOf(list).cx, listBefore.cx + 90);
    EXPECT_EQ(SizeOf(list).cy, listBefore.cy + 70);
    EXPECT_EQ(PlaceOf(button).right, buttonBefore.right + 90);
    EXPECT_EQ(PlaceOf(button).bottom, buttonBefore.bottom + 70);
    Resize(window, {100, 100});
    EXPECT_EQ(SizeOf(window).cx, smallest.cx);
    EXPECT_EQ(SizeOf(list).cy, listBefore.cy);
}

TEST_F(Desktop, ShortcutsPressButtons) {
    HWND window = StartTracking();
    PressWithControl(window, VK_ADD);
    app.WaitForText(IDC_FORM3_NNIVEAU1, "1");
    PressWithControl(window, '3');
    app.WaitForText(IDC_FORM3_NBFICH1, "2");
}

TEST_F(Desktop, ShortcutsOfDisabledButtonsDoNothing) {
    HWND window = StartTracking("1");
    PressWithControl(window, '1');
    PressWithControl(window, VK_ADD);
    app.WaitForText(IDC_FORM3_NNIVEAU1, "1");
    EXPECT_EQ(cad.Calls(), calls::AtStartUp());
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
