#include "win32/window/window_fonts.h"

#include "win32/process/require.h"

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
