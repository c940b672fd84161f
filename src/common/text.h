#pragma once

#include <string>
#include <string_view>

/// The text without the blanks around it.
std::wstring_view trimmed(std::wstring_view text);
std::string_view trimmed(std::string_view text);

/// Whether two texts differ in case only.
bool equalIgnoringCase(std::wstring_view a, std::wstring_view b);

/// Takes the next line off the front of `rest`: up to CR LF, LF or CR, which is dropped.
std::wstring_view takeLine(std::wstring_view& rest);
std::string_view takeLine(std::string_view& rest);
