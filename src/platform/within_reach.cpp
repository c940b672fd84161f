#include "platform/within_reach.h"

#include <algorithm>

namespace {

constexpr int kGrip = 120;  ///< pixels of a title bar that are enough to grab it

bool canBeGrabbed(const Area& title, const Area& monitor) {
    const int across = std::min(title.right, monitor.right) - std::max(title.left, monitor.left);
    const int down = std::min(title.bottom, monitor.bottom) - std::max(title.top, monitor.top);
    return across >= kGrip && down >= title.height() / 2;
}

}  // namespace

Point cornerWithinReach(const Area& titleBar, bool cornerIsOnAMonitor, const Monitor& nearest) {
    if (cornerIsOnAMonitor || canBeGrabbed(titleBar, nearest.whole)) {
        return {titleBar.left, titleBar.top};
    }
    const Area& work = nearest.work;
    return {std::clamp(titleBar.left, work.left + kGrip - titleBar.width(), work.right - kGrip),
            std::clamp(titleBar.top, work.top, work.bottom - titleBar.height())};
}

Point cornerOnScreen(const Area& normalPlace, const Monitor& nearest) {
    return {normalPlace.left + nearest.work.left - nearest.whole.left,
            normalPlace.top + nearest.work.top - nearest.whole.top};
}
