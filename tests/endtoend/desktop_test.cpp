// What a window owes its user on any desktop: size, place, keyboard.

#include "driver/keys.h"
#include "scenario.h"

namespace {

SIZE SizeOf(HWND window) {
    const RECT place = PlaceOf(window);
    return {place.right - place.left, place.bottom - place.top};
}

using Desktop = Scenario;

bool IsFrame(HWND control) {
    const bool isGroup = (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
    return ClassOf(control) == "SysTabControl32" || (ClassOf(control) == "Button" && isGroup);
}

/// Makes a window as small as every window can be made; all its controls must be in sight then,
/// none upon another (labels may touch by the rounding of a pixel).
void ExpectAllInSightWhenSmall(HWND window) {
    SetWindowPos(window, nullptr, 0, 0, 940, 480, SWP_NOZORDER);
    EXPECT_LE(SizeOf(window).cx, 940);
    EXPECT_LE(SizeOf(window).cy, 480);
    RECT inside{};
    GetClientRect(window, &inside);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
    std::vector<RECT> places;
    for (HWND control = GetWindow(window, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const RECT place = PlaceOf(control);
        RECT shared{};
        if (!IsWindowVisible(control)) continue;
        UnionRect(&shared, &inside, &place);
        EXPECT_TRUE(EqualRect(&shared, &inside)) << GetDlgCtrlID(control);
        if (IsFrame(control)) continue;
        for (const RECT& other : places) {
            IntersectRect(&shared, &place, &other);
            EXPECT_LE(shared.right - shared.left, 1) << GetDlgCtrlID(control);
        }
        places.push_back(place);
    }
}

TEST_F(Desktop, WindowsStandWholeOnTheScreenAndCanBeMadeSmall) {
    settings.Set("tarnwick", "startup", "toppos3", "-9000");
    settings.Set("tarnwick", "startup", "leftpos3", "30000");
    WriteListOf({"a.SLDPRT", "b.SLDPRT"});
    cad.Start({"--hidden"});
    StartAndResume();
    HWND window = app.Window(kTracking);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_EQ(PlaceOf(window).top, work.top);
    EXPECT_EQ(PlaceOf(window).right, work.right);

    HWND list = app.Control(IDC_FORM3_LIST1);
    const SIZE before = SizeOf(window);
    const SIZE listBefore = SizeOf(list);
    SetWindowPos(window, nullptr, 0, 0, before.cx + 90, before.cy - 50, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(SizeOf(list).cx, listBefore.cx + 90);
    EXPECT_EQ(SizeOf(list).cy, listBefore.cy - 50);
    ExpectAllInSightWhenSmall(window);

    SetWindowPos(window, nullptr, work.right - 200, -50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_GT(PlaceOf(window).right, work.right);
    SendMessageW(window, WM_DISPLAYCHANGE, 32, MAKELPARAM(work.right, work.bottom));
    EXPECT_EQ(PlaceOf(window).top, work.top);
    EXPECT_EQ(PlaceOf(window).right, work.right);
}

TEST_F(Desktop, ShortcutsReachTheListSelectItsLinesAndPressButtons) {
    sandbox.AddDocument("plan.SLDDRW");
    StartInDocuments({"--hidden"});
    app.WaitForText(IDC_FORM1_CPTFICHIER, "1");
    HWND window = app.Window(kSelection);
    BringForward(window);
    for (const WORD key : {'G', 'A', 'D'}) PressKeys({VK_CONTROL, key});
    app.WaitForText(IDC_FORM1_NBFICH, "1");
    keybd_event(VK_F1, 0, 0, 0);
    keybd_event(VK_F1, 0, KEYEVENTF_KEYUP, 0);
    // Here there is no guide beside the program.
    EXPECT_NE(app.Box().Text().find("guide.html"), std::string::npos);
    app.Box().Answer(IDOK);

    ExpectAllInSightWhenSmall(window);
    app.Click(IDC_FORM1_CMDREPDEF);
    HWND configurations = app.Window(kConfigurations);
    ExpectAllInSightWhenSmall(configurations);
    app.Click(IDC_FORM4_CMDCREER);
    WaitFor("the other page", [&] { return IsWindowVisible(app.Control(IDC_FORM4_CMDVALIDER)); });
    ExpectAllInSightWhenSmall(configurations);
}

}  // namespace
