// The items that a window adds to its system menu.

#include "contract/win32/real_windows.h"
#include "win32/window/system_menu.h"
#include "win32/window/window_keys.h"

constexpr SystemMenuItem kItems[] = {{IDM_CONTRACT_ONE, L"Un"},
                                     {IDM_CONTRACT_TWO, L"Deux\tCtrl+Z", true}};

/// From a position on; 0 for a separator.
static std::vector<UINT> idsIn(HMENU menu, int from) {
    std::vector<UINT> ids;
    for (int i = from; i < GetMenuItemCount(menu); ++i) ids.push_back(GetMenuItemID(menu, i));
    return ids;
}

struct Menus : RealWindowTest {
    static void pressControlZ() {
        BYTE none[256] = {}, control[256] = {};
        control[VK_CONTROL] = 0x80;
        MSG pressed{dialog(), WM_KEYDOWN, 'Z', 1, 0, {}};
        SetKeyboardState(control);
        EXPECT_TRUE(translateShortcut(dialog(), pressed));
        SetKeyboardState(none);
    }

    std::unique_ptr<Window> window =
        factory.create({.dialogId = IDD_CONTRACT, .systemMenu = kItems}, *this);
};

TEST_F(Menus, StandBelowSeparatorsAndAreClickedUnlessGreyed) {
    HMENU menu = GetSystemMenu(dialog(), FALSE);
    const int count = GetMenuItemCount(menu);
    EXPECT_EQ(idsIn(menu, count - 4),
              (std::vector<UINT>{0, IDM_CONTRACT_ONE, 0, IDM_CONTRACT_TWO}));
    for (const auto& [marked, state] : {std::pair(true, MF_CHECKED), {false, MF_UNCHECKED}}) {
        window->setMenuItemChecked(IDM_CONTRACT_ONE, marked);
        EXPECT_EQ(GetMenuState(menu, IDM_CONTRACT_ONE, MF_BYCOMMAND), state);
        EXPECT_EQ(GetMenuState(menu, IDM_CONTRACT_TWO, MF_BYCOMMAND), MF_UNCHECKED);
    }
    // As when it is chosen, and by its key.
    for (const bool enabled : {false, true}) {
        window->setMenuItemEnabled(IDM_CONTRACT_TWO, enabled);
        SendMessageW(dialog(), WM_SYSCOMMAND, IDM_CONTRACT_TWO + 3, 0);
        pressControlZ();
        SendMessageW(dialog(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    }
    EXPECT_EQ(raised, RaisedEvents(2, {IDM_CONTRACT_TWO, Event::Click}));
}

TEST_F(Menus, AlsoComeUpByThemselves) {
    window->show();
    window->setMenuItemChecked(IDM_CONTRACT_ONE, true);
    window->setMenuItemEnabled(IDM_CONTRACT_TWO, false);
    static std::vector<UINT> items;
    static UINT states = 0;
    SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR timer, DWORD) {
        HWND popup = FindWindowW(L"#32768", nullptr);
        if (!popup || !IsWindowVisible(popup)) return;
        KillTimer(nullptr, timer);
        const auto menu = reinterpret_cast<HMENU>(SendMessageW(popup, MN_GETHMENU, 0, 0));
        items = idsIn(menu, 0);
        states = GetMenuState(menu, 0, MF_BYPOSITION) | GetMenuState(menu, 2, MF_BYPOSITION);
        for (const WPARAM key : {VK_DOWN, VK_RETURN}) PostMessageW(popup, WM_KEYDOWN, key, 1);
    });
    // The frame has Windows' own.
    RECT frame{};
    GetWindowRect(dialog(), &frame);
    EXPECT_TRUE(isOnFrame(dialog(), MAKELPARAM(frame.left + 20, frame.top + 5)));
    SendMessageW(item(IDC_CONTRACT_ONE), WM_CONTEXTMENU,
                 reinterpret_cast<WPARAM>(item(IDC_CONTRACT_ONE)), MAKELPARAM(-1, -1));
    EXPECT_EQ(items, (std::vector<UINT>{IDM_CONTRACT_ONE, 0, IDM_CONTRACT_TWO}));
    EXPECT_EQ(states, static_cast<UINT>(MF_CHECKED | MF_GRAYED));
    EXPECT_TRUE(eventually([&] { return !raised.empty(); }));
    EXPECT_EQ(raised, (RaisedEvents{{IDM_CONTRACT_ONE, Event::Click}}));
}
