#pragma once

#include <algorithm>
#include <cstdint>

// Places and sizes on the screen, in pixels, without Windows' own types.

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Area {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
    Point corner() const { return {left, top}; }
    Size size() const { return {width(), height()}; }
    bool operator==(const Area&) const = default;
};

inline Area areaAt(Point corner, Size size) {
    return {corner.x, corner.y, corner.x + size.width, corner.y + size.height};
}

/// The size that is no wider and no higher than either.
inline Size smaller(Size a, Size b) {
    return {std::min(a.width, b.width), std::min(a.height, b.height)};
}

/// value * numerator / denominator without overflow, halves rounded away from zero. The denominator
/// is positive.
constexpr int scaled(int value, int numerator, int denominator) {
    const std::int64_t product = std::int64_t{value} * numerator;
    const std::int64_t half = product < 0 ? -denominator / 2 : denominator / 2;
    return static_cast<int>((product + half) / denominator);
}

/// The settings are in twips: 1440 to an inch at the window's own resolution.
inline constexpr int kTwipsPerInch = 1440;

constexpr int twipsOf(int pixels, int dpi) { return scaled(pixels, kTwipsPerInch, dpi); }
constexpr int pixelsOf(int twips, int dpi) { return scaled(twips, dpi, kTwipsPerInch); }
