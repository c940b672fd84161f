#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "ports/area.h"
#include "rules/placement.h"
#include "win32/window/window_look.h"

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
