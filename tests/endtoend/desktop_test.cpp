// What a window owes its user on any desktop: size, place, keyboard.

#include "driver/keys.h"
#include "scenario.h"

using Desktop = Scenario;

static SIZE sizeOf(HWND window) {
    const RECT place = placeOf(window);
    return {place.right - place.left, place.bottom - place.top};
}

static bool isFrame(HWND control) {
    const bool isGroup = (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
    return classOf(control) == "SysTabControl32" || (classOf(control) == "Button" && isGroup);
}

/// Makes a window as small as every window can be made; all its controls must be in sight then,
/// none upon another (labels may touch by the rounding of a pixel).
static void expectAllInSightWhenSmall(HWND window) {
    SetWindowPos(window, nullptr, 0, 0, 940, 480, SWP_NOZORDER);
    EXPECT_LE(sizeOf(window).cx, 940);
    EXPECT_LE(sizeOf(window).cy, 480);
    RECT inside{}, shared{};
    GetClientRect(window, &inside);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
    std::vector<RECT> places;
    for (HWND control : descendants(window)) {
        const RECT place = placeOf(control);
        if (GetParent(control) != window || !IsWindowVisible(control)) continue;
        UnionRect(&shared, &inside, &place);
        EXPECT_TRUE(EqualRect(&shared, &inside)) << GetDlgCtrlID(control);
        if (isFrame(control)) continue;
        for (const RECT& other : places) {
            IntersectRect(&shared, &place, &other);
            EXPECT_LE(shared.right - shared.left, 1) << GetDlgCtrlID(control);
        }
        places.push_back(place);
    }
}

TEST_F(Desktop, WindowsStandWholeOnTheScreenAndCanBeMadeSmall) {
    settings.set("tarnwick", "startup", "toppos3", "-9000");
    settings.set("tarnwick", "startup", "leftpos3", "30000");
    resume({"a.SLDPRT", "b.SLDPRT"}, {"--hidden"});
    HWND window = app.window(kTracking);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_EQ(placeOf(window).top, work.top);
    EXPECT_EQ(placeOf(window).right, work.right);

    HWND list = app.control(IDC_FORM3_LIST1);
    const SIZE before = sizeOf(window), listBefore = sizeOf(list);
    SetWindowPos(window, nullptr, 0, 0, before.cx + 90, before.cy - 50, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(sizeOf(list).cx, listBefore.cx + 90);
    EXPECT_EQ(sizeOf(list).cy, listBefore.cy - 50);
    expectAllInSightWhenSmall(window);

    SetWindowPos(window, nullptr, work.right - 200, -50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_GT(placeOf(window).right, work.right);
    SendMessageW(window, WM_DISPLAYCHANGE, 32, MAKELPARAM(work.right, work.bottom));
    EXPECT_EQ(placeOf(window).top, work.top);
    EXPECT_EQ(placeOf(window).right, work.right);
}

TEST_F(Desktop, ShortcutsReachTheListSelectItsLinesAndPressButtons) {
    sandbox.addDocument("plan.SLDDRW");
    startInDocuments({"--hidden"});
    app.waitForText(IDC_FORM1_CPTFICHIER, "1");
    HWND window = app.window(kSelection);
    bringForward(window);
    for (const WORD key : {'G', 'A', 'D'}) pressKeys({VK_CONTROL, key});
    app.waitForText(IDC_FORM1_NBFICH, "1");
    pressKeys({VK_F1});
    // Here there is no guide beside the program.
    EXPECT_NE(app.answerBox(IDOK).find("guide.html"), std::string::npos);

    expectAllInSightWhenSmall(window);
    app.click(IDC_FORM1_CMDREPDEF);
    HWND configurations = app.window(kConfigurations);
    expectAllInSightWhenSmall(configurations);
    app.click(IDC_FORM4_CMDCREER);
    waitFor("the other page", [&] { return IsWindowVisible(app.control(IDC_FORM4_CMDVALIDER)); });
    expectAllInSightWhenSmall(configurations);
}
