#include "window_fonts.h"

#include <cwchar>

WindowFonts::WindowFonts(UINT dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
    LOGFONTW font = metrics.lfMessageFont;
    text_ = CreateFontIndirectW(&font);

    LOGFONTW heading = font;
    heading.lfHeight = MulDiv(font.lfHeight, 3, 2);
    heading.lfWeight = FW_SEMIBOLD;
    heading_ = CreateFontIndirectW(&heading);

    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    std::wcscpy(font.lfFaceName, L"Consolas");
    fixedPitch_ = CreateFontIndirectW(&font);
}

WindowFonts::~WindowFonts() {
    DeleteObject(text_);
    DeleteObject(heading_);
    DeleteObject(fixedPitch_);
}
