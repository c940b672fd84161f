#pragma once

#include <string_view>

/// Whether a text holds plain letters alone. They are the same in every encoding, so that the
/// system need not convert them; most lists hold no others.
template <class Character>
bool isPlain(std::basic_string_view<Character> text) {
    unsigned all = 0;
    for (const Character c : text) all |= static_cast<unsigned>(c);
    return (all & ~0x7FU) == 0;
}
