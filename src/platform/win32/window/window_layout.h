#pragma once

#include <windows.h>

#include <span>
#include <vector>

#include "platform/window.h"

/// Where the controls of a window stand: as its dialog template says, measured by the font that
/// the window uses now, and following the edges of the window when it is larger.
class WindowLayout {
 public:
    /// Remembers the template: to be made while all stands as the template says.
    WindowLayout(HWND window, std::span<const Anchor> anchors);

    /// From now on measures by this font.
    void measureBy(HFONT font);

    /// The size of the whole window when it is as large as its template.
    SIZE smallestWindow() const;

    /// Puts every control in its place for the present size of the window.
    void arrange() const;

 private:
    struct Place {
        HWND control;
        RECT area;
        Growth across;
        Growth down;
    };
    RECT measured(const RECT& area) const;

    HWND window_;
    RECT client_{};  ///< this and all areas are those of the template
    SIZE templateUnit_{};
    SIZE unit_{};
    std::vector<Place> places_;
};
