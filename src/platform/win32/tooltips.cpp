#include "platform/win32/tooltips.h"

#include <commctrl.h>
#include <string>

void addTooltips(HWND window, std::span<const Tooltip> tooltips) {
    if (tooltips.empty()) return;
    HWND tips =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                        WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, nullptr, nullptr);
    // Long texts break over several lines.
    constexpr int kWidestTip = 400;
    SendMessageW(
        tips, TTM_SETMAXTIPWIDTH, 0,
        MulDiv(kWidestTip, static_cast<int>(GetDpiForWindow(window)), USER_DEFAULT_SCREEN_DPI));
    for (const Tooltip& tooltip : tooltips) {
        std::wstring text = tooltip.text;
        TOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = window;
        tool.uId = reinterpret_cast<UINT_PTR>(GetDlgItem(window, tooltip.controlId));
        tool.lpszText = text.data();
        SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}
