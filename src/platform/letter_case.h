#pragma once

#include <string>
#include <string_view>

/// The text in upper case by the platform's own tables, letter for letter (lengths are kept), so
/// that texts which differ in case only become equal. Each platform implements it.
std::wstring upperCase(std::wstring_view text);
