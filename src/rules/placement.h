#pragma once

#include <vector>

#include "ports/area.h"
#include "ports/window.h"

/// Where the controls of a window are: as its dialog template says, in the measure of the
/// window's present font, and following the window's edges when it grows or shrinks.
class ControlLayout {
 public:
    /// `client`: the template's area. `unit`: the size of an average character of the font that
    /// this was measured by. `shrinks`: how much smaller the window can be made, in dialog units,
    /// which are a quarter of that character wide and an eighth high (GetDialogBaseUnits).
    ControlLayout(Size client, Size unit, Size shrinks = {})
        : client_(client),
          shrinks_{scaled(shrinks.width, unit.width, 4), scaled(shrinks.height, unit.height, 8)},
          templateUnit_(unit),
          unit_(unit) {}

    /// A control's area in the template.
    void add(const Area& area, Growth across, Growth down);

    /// Sets the size of an average character of the window's present font.
    void measureBy(Size unit) { unit_ = unit; }

    /// The client area when the window is as large as the template.
    Size templateClient() const { return scaledSize(client_); }

    /// The smallest area in which all controls are in sight.
    Size smallestClient() const;

    /// The controls' places in an area of this size, in the order in which they were added.
    std::vector<Area> arranged(Size client) const;

 private:
    struct Place {
        Area area;
        Growth across;
        Growth down;
    };

    int across(int x) const { return scaled(x, unit_.width, templateUnit_.width); }
    int down(int y) const { return scaled(y, unit_.height, templateUnit_.height); }

    Size scaledSize(Size size) const { return {across(size.width), down(size.height)}; }

    Size client_;  ///< this and all other lengths are the template's
    Size shrinks_;
    Size templateUnit_;
    Size unit_;
    std::vector<Place> places_;
};

struct Monitor {
    Area whole;
    Area work;  ///< without the taskbar
};

/// A window's place, moved as little as possible to be wholly within `work`, and made smaller if it
/// is larger than that.
Area inSight(const Area& place, const Area& work);

/// The place on the screen of a window whose normal place is relative to the work area, as Windows
/// keeps it for a minimised window (WINDOWPLACEMENT, workspace coordinates).
Area placeOnScreen(const Area& normalPlace, const Monitor& nearest);
