#pragma once

#include <windows.h>

#include <array>
#include <string>

#include "platform/win32/window/handles.h"

/// The widest of some lines in the font of their list.
class WidestLine {
 public:
    explicit WidestLine(HWND list);

    void add(const std::wstring& line);
    /// How far a list must scroll for it to be seen: the control leaves a margin before it.
    int extent() const { return widest_ == 0 ? 0 : widest_ + kMargin; }

 private:
    static constexpr int kMargin = 8;

    int widthOf(const std::wstring& line) const;

    FontContext context_;
    std::array<int, 256> widths_{};  ///< of the first characters: to ask for each line takes long
    int widest_ = 0;
};
