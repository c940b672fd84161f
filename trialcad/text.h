#pragma once

#include <string>
#include <string_view>

/// Equality without regard to case, as Windows compares file and automation names.
bool sameText(std::wstring_view left, std::wstring_view right);

/// A non-negative decimal number of at most nine digits; -1 for anything else.
long parseNumber(std::wstring_view text);

std::string toUtf8(std::wstring_view text);
