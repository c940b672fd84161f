#include "rules/placement.h"

#include <algorithm>

namespace {

void grow(int& start, int& end, Growth growth, int gained) {
    if (growth == Growth::Move) start += gained;
    if (growth != Growth::Stay) end += gained;
}

}  // namespace

void ControlLayout::add(const Area& area, Growth across, Growth down) {
    places_.push_back({area, across, down});
}

Size ControlLayout::smallestClient() const {
    return scaledSize({client_.width - shrinks_.width, client_.height - shrinks_.height});
}

std::vector<Area> ControlLayout::arranged(Size client) const {
    const Size usual = templateClient();
    const Size smallest = smallestClient();
    const int wider = std::max(client.width, smallest.width) - usual.width;
    const int higher = std::max(client.height, smallest.height) - usual.height;
    std::vector<Area> areas;
    for (const Place& place : places_) {
        const Area& area = place.area;
        Area now{across(area.left), down(area.top), across(area.right), down(area.bottom)};
        grow(now.left, now.right, place.across, wider);
        grow(now.top, now.bottom, place.down, higher);
        areas.push_back(now);
    }
    return areas;
}

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
