#include "name_bar.h"

namespace {

constexpr COLORREF kBackground = RGB(255, 244, 206);
constexpr COLORREF kAccent = RGB(202, 80, 16);
constexpr COLORREF kText = RGB(50, 40, 20);
constexpr wchar_t kHeading[] = L"Session d'essai";
constexpr wchar_t kNote[] =
    L"Elle remplace SolidWorks pour les essais, sans licence. Aucun document n'est modifié.";

void fill(HDC context, const RECT& area, COLORREF color) {
    const Unique<HBRUSH, DeleteObject> brush(CreateSolidBrush(color));
    FillRect(context, &area, brush.get());
}

/// Draws one line and moves the area down below it.
void drawLine(HDC context, RECT& area, HFONT font, const std::wstring& text) {
    SelectObject(context, font);
    const auto length = static_cast<int>(text.size());
    const UINT format = DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;
    area.top += DrawTextW(context, text.c_str(), length, &area, format);
}

}  // namespace

void drawNameBar(HDC context, const RECT& bar, const WindowFonts& fonts, UINT dpi,
                 const std::wstring& facts) {
    const auto scaled = [dpi](int pixels) { return MulDiv(pixels, static_cast<int>(dpi), 96); };
    fill(context, bar, kBackground);
    fill(context, {bar.left, bar.top, bar.left + scaled(6), bar.bottom}, kAccent);

    const HGDIOBJ before = GetCurrentObject(context, OBJ_FONT);
    SetBkMode(context, TRANSPARENT);
    RECT area = {bar.left + scaled(18), bar.top + scaled(8), bar.right - scaled(12), bar.bottom};
    SetTextColor(context, kAccent);
    drawLine(context, area, fonts.heading(), kHeading);
    SetTextColor(context, kText);
    area.top += scaled(4);
    drawLine(context, area, fonts.text(), kNote);
    area.top += scaled(2);
    drawLine(context, area, fonts.text(), facts);
    SelectObject(context, before);
}
