#include "platform/sign_key.h"

bool pressesSign(const PressedKey& pressed, std::int16_t scanned) {
    constexpr int kShift = 1;
    const int key = scanned & 0xFF;
    const int held = (scanned >> 8) & 0xFF;
    if (scanned == -1 || (held & ~kShift) != 0) return false;
    return pressed ==
           PressedKey{.key = key, .shift = (held & kShift) != 0, .control = true, .alt = false};
}
