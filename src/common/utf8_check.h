#pragma once

#include <cstddef>
#include <string_view>

/// How many bytes from the front are well-formed UTF-8.
std::size_t wellFormedLength(std::string_view text);

/// How many bytes at the front of a text that begins with ill-formed UTF-8 one U+FFFD stands for:
/// as many as could have begun a character (The Unicode Standard, "U+FFFD Substitution of Maximal
/// Subparts").
std::size_t illFormedLength(std::string_view text);
