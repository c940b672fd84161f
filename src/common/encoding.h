#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Files hold UTF-8, windows and file names wide text. Each platform implements the conversions.

/// The wide text of valid UTF-8.
std::wstring wideText(std::string_view utf8);

/// Appends a wide text in UTF-8. Raises 5 for text that is not valid UTF-16, as file names can be.
void appendUtf8(std::string& utf8, std::wstring_view text);

/// The text of bytes in the system's single-byte code page, which some editors write. Each platform
/// implements it.
std::wstring codePageText(std::string_view bytes);

/// How many bytes at the front of a text are well-formed UTF-8.
std::size_t wellFormedLength(std::string_view text);

/// For a text that begins with ill-formed UTF-8: how many bytes one U+FFFD replaces, namely as many
/// as could have begun a character (The Unicode Standard, "U+FFFD Substitution of Maximal
/// Subparts").
std::size_t illFormedLength(std::string_view text);

/// A file's bytes as well-formed UTF-8. A file that begins with a byte-order mark of UTF-8 or
/// UTF-16 is read as that says, without the mark, and with U+FFFD for what is no character. In any
/// other file each line is valid UTF-8, or else read in the system's single-byte code page: an odd
/// byte spoils its own line only.
std::string textInUtf8(std::string bytes);
