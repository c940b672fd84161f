#pragma once

#include <array>
#include <cstdint>

class Settings;
class Window;

/// The windows whose places are kept.
enum class PlacedWindow { Selection, ExistingList, Tracking, SearchFolders };

/// Where the windows were left, in twips from the top left corner of the screen.
class WindowPlaces {
 public:
    explicit WindowPlaces(Settings& settings) : settings_(settings) {}

    /// Reads every saved place; 1416, 2964 for one that is not there. Raises 13 for a stored text
    /// that is not a number, 6 for one outside 16 bits.
    void readAll();
    void read(PlacedWindow window);

    /// Puts a window where the place read last says.
    void restore(PlacedWindow which, Window& window) const;

    /// Saves where a window stands now, for the next run to read back: values are kept within the
    /// 16 bits that reading allows.
    void save(PlacedWindow which, const Window& window);

 private:
    struct Place {
        std::int16_t top = 0;
        std::int16_t left = 0;
    };

    Settings& settings_;
    std::array<Place, 4> places_;
};
