#include "win32/window/window_look.h"

#include "win32/process/require.h"
#include "win32/window/program_icon.h"

namespace {

LOGFONTW messageFont(int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    require(SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                                       static_cast<UINT>(dpi)),
            L"la police des messages");
    return metrics.lfMessageFont;
}

UniqueFont made(const LOGFONTW& font) {
    return UniqueFont(require(CreateFontIndirectW(&font), L"une police"));
}

UniqueFont named(LOGFONTW font, const wchar_t* face) {
    lstrcpynW(font.lfFaceName, face, LF_FACESIZE);
    return made(font);
}

UniqueFont headingFont(LOGFONTW font) {
    font.lfWeight = FW_BOLD;
    font.lfHeight = font.lfHeight * 5 / 4;
    return named(font, L"Arial");
}

UniqueFont fixedPitchFont(LOGFONTW font) {
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    return named(font, L"Consolas");
}

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

WindowFonts::WindowFonts(int dpi, int percent) {
    LOGFONTW font = messageFont(dpi);
    font.lfHeight = scaled(font.lfHeight, percent, 100);
    text_ = made(font);
    heading_ = headingFont(font);
    fixedPitch_ = fixedPitchFont(font);
}

Size averageCharacter(HFONT font) {
    constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = ARRAYSIZE(kLetters) - 1;
    const FontContext context(nullptr, font);
    SIZE size{};
    GetTextExtentPoint32W(context.get(), kLetters, kCount, &size);
    return {(size.cx / (kCount / 2) + 1) / 2, size.cy};
}

WindowIcons::WindowIcons(HWND window, UINT dpi)
    : small_(loadIcon(GetSystemMetricsForDpi(SM_CXSMICON, dpi),
                      GetSystemMetricsForDpi(SM_CYSMICON, dpi))),
      big_(loadIcon(GetSystemMetricsForDpi(SM_CXICON, dpi),
                    GetSystemMetricsForDpi(SM_CYICON, dpi))) {
    setIcon(window, ICON_SMALL, small_);
    setIcon(window, ICON_BIG, big_);
    showInLabels(window, big_);
}
