#pragma once

#include <string>
#include <string_view>

// Files hold UTF-8; windows and file names are wide. Each platform implements the two.

/// The wide text that valid UTF-8 spells.
std::wstring wideText(std::string_view utf8);

/// Appends the UTF-8 of a wide text. Raises 5 for text that is not valid UTF-16, as file names may
/// be.
void appendUtf8(std::string& utf8, std::wstring_view text);
