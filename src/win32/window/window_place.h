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
    /// Make it while every control is still where the template puts it.
    WindowLayout(HWND window, const WindowTemplate& source);

    /// From now on measures by this font.
    void measureBy(HFONT font);

    // The size of the whole window: as large as its template, and as small as it can be.
    Size templateWindow() const { return withFrame(layout_.templateClient()); }
    Size smallestWindow() const { return withFrame(layout_.smallestClient()); }

    /// Puts every control where it belongs at the window's present size.
    void arrange() const;

 private:
    Size withFrame(Size client) const;

    HWND window_;
    ControlLayout layout_;
    std::vector<HWND> controls_;
};

/// Where a window is, how large it is, and how large its letters and icons are.
class WindowPlace {
 public:
    /// `tips`: the window's tooltips, which follow its font.
    WindowPlace(HWND window, const WindowTemplate& source, HWND tips);

    Area place() const;
    void moveTo(const Area& place);
    int dpi() const;
    Area workArea() const;
    /// Makes a new window as large as its template, in letters that fit the screen.
    void takeTemplateSize();
    /// Moves a window that is not wholly on the screen.
    void moveIntoSight();

    // What Windows reports.

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
