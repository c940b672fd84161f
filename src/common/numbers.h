#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The value of the text's leading digits; 0 when there are none, and the largest 32-bit number
/// when the value is larger.
std::int32_t numericValue(std::wstring_view text);

/// The whole number in a text. Blanks around it, a sign and decimals are allowed; halves are
/// rounded to the even neighbour. Raises 13 for anything but a number, 6 outside 16 bits.
std::int16_t wholeNumber(std::wstring_view text);

/// The decimal text of a number.
std::wstring decimal(std::int64_t number);
