#include "win32/window/tooltips.h"

#include <commctrl.h>
#include <string>

HWND addTooltips(HWND window, std::span<const Tooltip> tooltips) {
    if (tooltips.empty()) return nullptr;
    HWND tips =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                        WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, nullptr, nullptr);
    for (const Tooltip& tooltip : tooltips) {
        std::wstring text = tooltip.text;
        TOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = window;
        tool.uId = reinterpret_cast<UINT_PTR>(GetDlgItem(window, tooltip.controlId));
        tool.lpszText = text.data();
        SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    return tips;
}

void fitTooltips(HWND tips, HFONT font, int dpi) {
    constexpr int kWidestTip = 400;  // beyond that a text breaks over several lines
    SendMessageW(tips, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    SendMessageW(tips, TTM_SETMAXTIPWIDTH, 0, MulDiv(kWidestTip, dpi, USER_DEFAULT_SCREEN_DPI));
}

void relayToTooltips(HWND tips, HWND control, UINT mouseMessage) {
    MSG message{};
    message.hwnd = control;
    message.message = mouseMessage;
    const DWORD position = GetMessagePos();
    message.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    POINT inside = message.pt;
    ScreenToClient(control, &inside);
    message.lParam = MAKELPARAM(inside.x, inside.y);
    SendMessageW(tips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}
