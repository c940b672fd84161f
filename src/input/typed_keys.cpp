#include "input/typed_keys.h"

#include "common/text.h"

bool pressesSign(const PressedKey& pressed, std::int16_t scanned) {
    constexpr int kShift = 1;
    const auto bits = static_cast<std::uint16_t>(scanned);
    const int key = bits & 0xFF;
    const int held = bits >> 8;
    if (scanned == -1 || (held & ~kShift) != 0) return false;
    return pressed ==
           PressedKey{.key = key, .shift = (held & kShift) != 0, .control = true, .alt = false};
}

std::optional<int> lineWithLetter(wchar_t letter, int from, int count,
                                  const std::function<std::wstring(int)>& line) {
    if (letter <= L' ') return std::nullopt;
    for (int i = 1; i <= count; ++i) {
        const int wanted = (from + i) % count;
        const std::wstring text = line(wanted);
        if (equalIgnoringCase(trimmed(text).substr(0, 1), {&letter, 1})) return wanted;
    }
    return std::nullopt;
}
