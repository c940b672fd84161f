#pragma once

#include <string>
#include <string_view>

/// Puts a text in upper case by the platform's own tables, letter for letter (lengths are kept),
/// so that texts which differ in case only become equal. Each platform implements it.
void makeUpperCase(std::wstring& text);

inline std::wstring upperCase(std::wstring_view text) {
    std::wstring result(text);
    makeUpperCase(result);
    return result;
}
