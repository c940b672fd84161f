#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "ports/area.h"

class Settings;
class Window;

/// The windows whose places are kept.
enum class PlacedWindow { Selection, ExistingList, Tracking, SearchFolders };

/// Where the windows were left: in twips from the top left corner of the screen, 1440 to an inch at
/// the window's own resolution, and in pixels, which count as long as the twips saved with them
/// haven't been changed.
class WindowPlaces {
 public:
    explicit WindowPlaces(Settings& settings) : settings_(settings) {}

    /// Reads all saved places; 1416, 2964 for one that wasn't saved. Raises 13 for a stored text
    /// that is no number, 6 for one outside 16 bits.
    void readAll();
    void read(PlacedWindow window);

    /// Puts a window in the place last read, but whole within the nearest monitor's work area.
    void restore(PlacedWindow which, Window& window) const;

    /// Saves where a window is now. Values are limited to 16 bits, so that the next run can
    /// read them.
    void save(PlacedWindow which, const Window& window);

 private:
    struct Place {
        std::int16_t top = 0;
        std::int16_t left = 0;
        std::optional<Point> pixels;

        Point corner(int dpi) const;
    };

    Settings& settings_;
    std::array<Place, 4> places_;
};
