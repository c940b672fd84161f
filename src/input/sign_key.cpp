#include "input/sign_key.h"

bool pressesSign(const PressedKey& pressed, std::int16_t scanned) {
    constexpr int kShift = 1;
    const auto bits = static_cast<std::uint16_t>(scanned);
    const int key = bits & 0xFF;
    const int held = bits >> 8;
    if (scanned == -1 || (held & ~kShift) != 0) return false;
    return pressed ==
           PressedKey{.key = key, .shift = (held & kShift) != 0, .control = true, .alt = false};
}
