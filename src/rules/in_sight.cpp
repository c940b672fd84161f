#include "rules/in_sight.h"

#include <algorithm>

namespace {

int within(int start, int length, int least, int end) {
    return std::clamp(start, least, std::max(least, end - length));
}

}  // namespace

Area inSight(const Area& place, const Area& work) {
    const Size size = smaller(place.size(), work.size());
    return areaAt({within(place.left, size.width, work.left, work.right),
                   within(place.top, size.height, work.top, work.bottom)},
                  size);
}

Area placeOnScreen(const Area& normalPlace, const Monitor& nearest) {
    return areaAt({normalPlace.left + nearest.work.left - nearest.whole.left,
                   normalPlace.top + nearest.work.top - nearest.whole.top},
                  normalPlace.size());
}
