#pragma once

#include "platform/area.h"

struct Monitor {
    Area whole;
    Area work;  ///< without the taskbar
};

/// The corner of a window that is to be reached by its title bar, the `nearest` monitor being the
/// one next to it. A window whose corner lies on any monitor, or of whose title bar enough is seen
/// to grab it, stays where it is; another one is brought far enough onto the nearest monitor.
Point cornerWithinReach(const Area& titleBar, bool cornerIsOnAMonitor, const Monitor& nearest);

/// The corner on the screen of a window whose normal place is given relative to the work area, as
/// Windows keeps it for a minimised one.
Point cornerOnScreen(const Area& normalPlace, const Monitor& nearest);
