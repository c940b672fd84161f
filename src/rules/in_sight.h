#pragma once

#include "ports/area.h"

struct Monitor {
    Area whole;
    Area work;  ///< without the taskbar
};

/// A window's place, moved as little as it takes to stand whole within `work`, and made smaller
/// where it is larger than that.
Area inSight(const Area& place, const Area& work);

/// The place on the screen of a window whose normal place is given relative to the work area, as
/// Windows keeps it for a minimised one (WINDOWPLACEMENT, workspace coordinates).
Area placeOnScreen(const Area& normalPlace, const Monitor& nearest);
