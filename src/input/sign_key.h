#pragma once

#include <cstdint>

/// A key that goes down, by its virtual-key code, with those held meanwhile.
struct PressedKey {
    int key = 0;
    bool shift = false;
    bool control = false;
    bool alt = false;

    bool operator==(const PressedKey&) const = default;
};

/// Whether Ctrl is pressed with the key that writes a sign. `scanned` is what VkKeyScanEx answers
/// for the sign: low the key, high what must be held to write it; -1 when no key does.
bool pressesSign(const PressedKey& pressed, std::int16_t scanned);
