#include "storage/window_places.h"

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/window.h"
#include "rules/placement.h"
#include "storage/settings.h"

namespace {

struct PlaceSettings {
    const NumberSetting& top;
    const NumberSetting& left;
    const TextSetting& pixels;
};

// In the order of PlacedWindow.
constexpr PlaceSettings kSettings[] = {
    {setting::kSelectionTop, setting::kSelectionLeft, setting::kSelectionPixels},
    {setting::kExistingListTop, setting::kExistingListLeft, setting::kExistingListPixels},
    {setting::kTrackingTop, setting::kTrackingLeft, setting::kTrackingPixels},
    {setting::kConfigurationTop, setting::kConfigurationLeft, setting::kConfigurationPixels},
};

std::size_t indexOf(PlacedWindow window) { return static_cast<std::size_t>(window); }

std::int16_t withinSixteenBits(int length) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(length, Limits::min(), Limits::max()));
}

std::wstring pairText(int first, int second) { return decimal(first) + L' ' + decimal(second); }

/// The pixels saved with these twips; nothing when there are none, or they can't be read.
std::optional<Point> pixelsSavedWith(const std::wstring& twips, std::wstring_view saved) {
    if (!saved.starts_with(twips + L' ')) return std::nullopt;
    saved.remove_prefix(twips.size() + 1);
    const std::size_t blank = std::min(saved.find(L' '), saved.size());
    try {
        return Point{wholeNumber(saved.substr(0, blank)), wholeNumber(saved.substr(blank))};
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

/// Moves a window, and once more if that took it to a monitor of another resolution, where it has
/// another size and a twip another length.
template <class Where>
void move(Window& window, const Where& where) {
    const int dpi = window.dpi();
    window.moveTo(where());
    if (window.dpi() != dpi) window.moveTo(where());
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
    place.pixels =
        pixelsSavedWith(pairText(place.top, place.left), valueOf(settings_, keys.pixels));
}

void WindowPlaces::restore(PlacedWindow which, Window& window) const {
    const Place& place = places_[indexOf(which)];
    move(window, [&] { return areaAt(place.corner(window.dpi()), window.place().size()); });
    move(window, [&] { return inSight(window.place(), window.workArea()); });
}

Point WindowPlaces::Place::corner(int dpi) const {
    return pixels.value_or(Point{pixelsOf(left, dpi), pixelsOf(top, dpi)});
}

void WindowPlaces::save(PlacedWindow which, const Window& window) {
    const PlaceSettings& keys = kSettings[indexOf(which)];
    const Point corner = window.place().corner();
    const auto twips = [&](int pixels) { return withinSixteenBits(twipsOf(pixels, window.dpi())); };
    setValue(settings_, keys.top, twips(corner.y));
    setValue(settings_, keys.left, twips(corner.x));
    setValue(settings_, keys.pixels,
             pairText(twips(corner.y), twips(corner.x)) + L' ' +
                 pairText(withinSixteenBits(corner.x), withinSixteenBits(corner.y)));
}
