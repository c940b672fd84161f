#include "platform/win32/window/window_fonts.h"

namespace {

LOGFONTW messageFont(UINT dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
    return metrics.lfMessageFont;
}

UniqueFont named(LOGFONTW font, const wchar_t* face) {
    lstrcpynW(font.lfFaceName, face, LF_FACESIZE);
    return UniqueFont(CreateFontIndirectW(&font));
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

}  // namespace

WindowFonts::WindowFonts(UINT dpi) {
    const LOGFONTW font = messageFont(dpi);
    text_.reset(CreateFontIndirectW(&font));
    heading_ = headingFont(font);
    fixedPitch_ = fixedPitchFont(font);
}

SIZE averageCharacter(HFONT font) {
    constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = ARRAYSIZE(kLetters) - 1;
    const HDC context = GetDC(nullptr);
    const HGDIOBJ previous = SelectObject(context, font);
    SIZE size{};
    GetTextExtentPoint32W(context, kLetters, kCount, &size);
    SelectObject(context, previous);
    ReleaseDC(nullptr, context);
    return {(size.cx / (kCount / 2) + 1) / 2, size.cy};
}
