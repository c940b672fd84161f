#include "platform/win32/window_fonts.h"

namespace {

LOGFONTW fontOf(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return font;
}

UniqueFont named(LOGFONTW font, const wchar_t* face) {
    lstrcpynW(font.lfFaceName, face, LF_FACESIZE);
    return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace

UniqueFont fixedPitchFont(HWND window) {
    LOGFONTW font = fontOf(window);
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    return named(font, L"Consolas");
}

UniqueFont headingFont(HWND window) {
    LOGFONTW font = fontOf(window);
    font.lfWeight = FW_BOLD;
    font.lfHeight = font.lfHeight * 5 / 4;
    return named(font, L"Arial");
}
