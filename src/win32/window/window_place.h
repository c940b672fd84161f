#pragma once

#include <windows.h>

#include <optional>

#include "win32/window/window_layout.h"
#include "win32/window/window_look.h"

/// Where a window stands, how large it is, and how large its letters and icons are.
class WindowPlace {
 public:
    /// `tips`: the window's tooltips, whose letters follow.
    WindowPlace(HWND window, const WindowTemplate& source, HWND tips);

    Area place() const;
    void moveTo(const Area& place);
    int dpi() const;
    Area workArea() const;
    /// At first: as large as the template, in the letters that fit.
    void takeTemplateSize();
    /// Moves what would not stand whole on the screen.
    void standInSight();

    // What Windows tells.

    Size smallestSize() const;
    void sizeChanged() const { layout_.arrange(); }
    void changeResolution(const RECT& suggested);
    void changeScreen();

 private:
    void chooseFonts();
    WindowFonts fittingFonts();
    void giveFonts(const WindowFonts& fonts);

    HWND window_;
    const int headingId_;
    const int fixedPitchId_;
    HWND tips_;
    WindowLayout layout_;
    std::optional<WindowFonts> fonts_;
    std::optional<WindowIcons> icons_;
};
