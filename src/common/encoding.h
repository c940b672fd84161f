#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Files hold UTF-8; windows and file names are wide. Each platform implements the two.

/// The wide text that valid UTF-8 spells.
std::wstring wideText(std::string_view utf8);

/// Appends the UTF-8 of a wide text. Raises 5 for text that is not valid UTF-16, as file names may
/// be.
void appendUtf8(std::string& utf8, std::wstring_view text);

/// The text that bytes spell in the system's single-byte code page, which some editors write.
/// Each platform implements it.
std::wstring codePageText(std::string_view bytes);

/// How many bytes from the front are well-formed UTF-8.
std::size_t wellFormedLength(std::string_view text);

/// How many bytes at the front of a text that begins with ill-formed UTF-8 one U+FFFD stands for:
/// as many as could have begun a character (The Unicode Standard, "U+FFFD Substitution of Maximal
/// Subparts").
std::size_t illFormedLength(std::string_view text);

/// A file's bytes as UTF-8, always well formed. A file that begins with a byte-order mark of UTF-8
/// or UTF-16 is read as that says, U+FFFD standing for what is no character. In any other, a line
/// of valid UTF-8 is taken as it is and every other line to be of the system's single-byte code
/// page: an odd byte spoils its own line and none else. The mark is dropped.
std::string textInUtf8(std::string bytes);
