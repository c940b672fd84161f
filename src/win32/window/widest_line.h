#pragma once

#include <windows.h>

#include <array>
#include <string>

#include "win32/window/handles.h"

/// The widest of some lines in the font of their list.
class WidestLine {
 public:
    /// `lines`: about how many are to come.
    WidestLine(HWND list, int lines);

    void add(const std::wstring& line);
    /// How far a list must scroll for it to be seen: the control leaves a margin before it.
    int extent() const { return widest_ == 0 ? 0 : widest_ + kMargin; }

 private:
    static constexpr int kMargin = 8;

    int widthOf(const std::wstring& line) const;

    FontContext context_;
    /// Of the first characters, when there are many lines: to ask for each of them takes long.
    std::array<int, 256> widths_{};
    std::size_t known_ = 0;  ///< characters
    int widest_ = 0;
};
