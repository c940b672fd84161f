#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A non-negative decimal number of at most nine digits; -1 for anything else.
std::int32_t parseNumber(std::wstring_view text);

/// UTF-8 for the journal, with U+FFFD for what is no valid UTF-16, as in some file names.
std::string toUtf8(std::wstring text);
