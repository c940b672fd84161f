#pragma once

#include <string_view>

/// Whether a text holds plain letters alone. They are the same in every encoding, so that the
/// system need not convert them; most lists hold no others.
template <class Character>
bool isPlain(std::basic_string_view<Character> text) {
    Character all = 0;  // no wider than a character, so that one instruction takes many
    for (const Character c : text) all = static_cast<Character>(all | c);
    return (all & ~0x7F) == 0;
}
