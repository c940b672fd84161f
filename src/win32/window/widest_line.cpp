#include "win32/window/widest_line.h"

#include <algorithm>

WidestLine::WidestLine(HWND list, int lines)
    : context_(list, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0))) {
    constexpr int kMany = 50;
    if (lines < kMany) return;
    const auto last = static_cast<UINT>(widths_.size() - 1);
    if (GetCharWidth32W(context_.get(), 0, last, widths_.data())) known_ = widths_.size();
}

void WidestLine::add(const std::wstring& line) { widest_ = std::max(widest_, widthOf(line)); }

int WidestLine::widthOf(const std::wstring& line) const {
    int width = 0;
    for (const wchar_t character : line) {
        if (character >= known_) {
            SIZE size{};
            GetTextExtentPoint32W(context_.get(), line.c_str(), static_cast<int>(line.size()),
                                  &size);
            return size.cx;
        }
        width += widths_[character];
    }
    return width;
}
