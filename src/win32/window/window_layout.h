#pragma once

#include <windows.h>

#include <vector>

#include "ports/area.h"
#include "rules/placement.h"

inline Area areaOfRect(const RECT& area) { return {area.left, area.top, area.right, area.bottom}; }

inline int dpiOf(HWND window) { return static_cast<int>(GetDpiForWindow(window)); }

/// Puts the controls of a window where its layout says.
class WindowLayout {
 public:
    /// Remembers the template: to be made while all stands as the template says.
    WindowLayout(HWND window, const WindowTemplate& source);

    /// From now on measures by this font.
    void measureBy(HFONT font);

    // The size of the whole window when it is as large as its template, or as small as it can be.
    Size templateWindow() const { return withFrame(layout_.templateClient()); }
    Size smallestWindow() const { return withFrame(layout_.smallestClient()); }

    /// Puts every control in its place for the present size of the window.
    void arrange() const;

 private:
    Size withFrame(Size client) const;

    HWND window_;
    ControlLayout layout_;
    std::vector<HWND> controls_;
};
