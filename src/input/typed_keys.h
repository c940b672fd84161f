#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

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

/// The zero-based line, below this one and then again from the top, whose text begins with a
/// letter in any case; blanks in front of it don't count. `from` may be -1, or the line itself.
std::optional<int> lineWithLetter(wchar_t letter, int from, int count,
                                  const std::function<std::wstring(int)>& line);
