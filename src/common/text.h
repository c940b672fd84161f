#pragma once

#include <string>
#include <string_view>

/// The text without the blanks around it.
std::wstring_view trimmed(std::wstring_view text);
std::string_view trimmed(std::string_view text);

/// Whether two texts are equal, or differ in case only.
bool equalIgnoringCase(std::wstring_view a, std::wstring_view b);

/// Takes the next line off the front of `rest`: up to CR LF, LF or CR, which is dropped.
std::wstring_view takeLine(std::wstring_view& rest);
std::string_view takeLine(std::string_view& rest);

/// Puts a text in upper case by the platform's own tables, letter by letter, so that its length
/// stays and texts which differ in case only become equal. Each platform implements it.
void makeUpperCase(std::wstring& text);

inline std::wstring upperCase(std::wstring_view text) {
    std::wstring result(text);
    makeUpperCase(result);
    return result;
}

/// Whether a text has plain letters only. They are the same in every encoding, so that the system
/// need not convert them; most lists have no others.
template <class Character>
bool isPlain(std::basic_string_view<Character> text) {
    Character all = 0;  // as narrow as a character, so that one instruction handles many
    for (const Character c : text) all = static_cast<Character>(all | c);
    return (all & ~0x7F) == 0;
}
