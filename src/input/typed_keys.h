#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// A key that goes down, by its virtual-key code, and the modifiers held with it.
struct PressedKey {
    int key = 0;
    bool shift = false;
    bool control = false;
    bool alt = false;

    bool operator==(const PressedKey&) const = default;
};

/// Whether Ctrl is pressed with the key that writes a sign. `scanned` is VkKeyScanEx's answer for
/// the sign: the key in the low byte, the modifiers needed to write it in the high one; -1 when no
/// key writes it.
bool pressesSign(const PressedKey& pressed, std::int16_t scanned);

/// The next zero-based line below `from`, wrapping around to `from` itself, whose text begins with
/// a letter, in any case and after any blanks. `from` may be -1.
std::optional<int> lineWithLetter(wchar_t letter, int from, int count,
                                  const std::function<std::wstring(int)>& line);
