#include "session/window_places.h"

#include <algorithm>
#include <limits>

#include "platform/window.h"
#include "session/setting_values.h"

namespace {

struct PlaceSettings {
    const NumberSetting& top;
    const NumberSetting& left;
};

// In the order of PlacedWindow.
constexpr PlaceSettings kSettings[] = {
    {setting::kSelectionTop, setting::kSelectionLeft},
    {setting::kExistingListTop, setting::kExistingListLeft},
    {setting::kTrackingTop, setting::kTrackingLeft},
    {setting::kConfigurationTop, setting::kConfigurationLeft},
};

std::size_t indexOf(PlacedWindow window) { return static_cast<std::size_t>(window); }

std::int16_t withinSixteenBits(int twips) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(twips, Limits::min(), Limits::max()));
}

}  // namespace

void WindowPlaces::readAll() {
    for (const auto window : {PlacedWindow::Selection, PlacedWindow::ExistingList,
                              PlacedWindow::Tracking, PlacedWindow::SearchFolders}) {
        read(window);
    }
}

void WindowPlaces::read(PlacedWindow window) {
    const PlaceSettings& keys = kSettings[indexOf(window)];
    Place& place = places_[indexOf(window)];
    place.top = valueOf(settings_, keys.top);
    place.left = valueOf(settings_, keys.left);
}

void WindowPlaces::restore(PlacedWindow which, Window& window) const {
    const Place& place = places_[indexOf(which)];
    window.moveTo(place.top, place.left);
}

void WindowPlaces::save(PlacedWindow which, const Window& window) {
    const PlaceSettings& keys = kSettings[indexOf(which)];
    setValue(settings_, keys.top, withinSixteenBits(window.top()));
    setValue(settings_, keys.left, withinSixteenBits(window.left()));
}
