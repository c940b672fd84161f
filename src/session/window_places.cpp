#include "session/window_places.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "common/numbers.h"
#include "platform/settings.h"
#include "platform/window.h"

namespace {

struct PlaceKeys {
    const wchar_t* application;
    const wchar_t* section;
    const wchar_t* top;
    const wchar_t* left;
};

// The search-folder window keeps its place under names of its own.
constexpr PlaceKeys kKeys[] = {
    {L"tarnwick", L"startup", L"toppos", L"leftpos"},
    {L"tarnwick", L"startup", L"toppos2", L"leftpos2"},
    {L"tarnwick", L"startup", L"toppos3", L"leftpos3"},
    {L"mervale", L"listerepert", L"toppos4", L"leftpos4"},
};

const PlaceKeys& keysOf(PlacedWindow window) { return kKeys[static_cast<std::size_t>(window)]; }

}  // namespace

void readPlace(Settings& settings, Module1& module, PlacedWindow window) {
    const PlaceKeys& keys = keysOf(window);
    WindowPlace& place = module.place(window);
    place.top = wholeNumber(settings.read(keys.application, keys.section, keys.top, L"1416"));
    place.left = wholeNumber(settings.read(keys.application, keys.section, keys.left, L"2964"));
}

std::int16_t withinSixteenBits(int twips) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(twips, Limits::min(), Limits::max()));
}

void savePlace(Settings& settings, PlacedWindow form, const Window& window) {
    const PlaceKeys& keys = keysOf(form);
    settings.write(keys.application, keys.section, keys.top,
                   decimal(withinSixteenBits(window.top())));
    settings.write(keys.application, keys.section, keys.left,
                   decimal(withinSixteenBits(window.left())));
}
