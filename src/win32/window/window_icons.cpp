#include "win32/window/window_icons.h"

#include "win32/window/program_icon.h"

namespace {

UniqueIcon loadIcon(int width, int height) {
    return UniqueIcon(
        static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_PROGRAM),
                                      IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
}

void setIcon(HWND window, WPARAM size, const UniqueIcon& icon) {
    SendMessageW(window, WM_SETICON, size, reinterpret_cast<LPARAM>(icon.get()));
}

void showInLabels(HWND window, const UniqueIcon& icon) {
    HWND label = nullptr;
    while ((label = FindWindowExW(window, label, L"Static", nullptr))) {
        const bool showsIcon = (GetWindowLongW(label, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
        if (showsIcon) SendMessageW(label, STM_SETICON, reinterpret_cast<WPARAM>(icon.get()), 0);
    }
}

}  // namespace

WindowIcons::WindowIcons(HWND window, UINT dpi)
    : small_(loadIcon(GetSystemMetricsForDpi(SM_CXSMICON, dpi),
                      GetSystemMetricsForDpi(SM_CYSMICON, dpi))),
      big_(loadIcon(GetSystemMetricsForDpi(SM_CXICON, dpi),
                    GetSystemMetricsForDpi(SM_CYICON, dpi))) {
    setIcon(window, ICON_SMALL, small_);
    setIcon(window, ICON_BIG, big_);
    showInLabels(window, big_);
}
