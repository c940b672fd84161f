#include <gtest/gtest.h>

#include "common/encoding.h"

namespace {

using std::string_literals::operator""s;

/// How a file of these bytes is read.
std::wstring read(const std::string& bytes) { return wideText(textInUtf8(bytes)); }

}  // namespace

TEST(TextDecoding, TakesEachLineAsUtf8OrElseInTheCodePage) {
    const std::pair<std::string, std::wstring> cases[] = {
        {"", L""},
        {"0  c:\\\xC3\xA9t\xC3\xA9", L"0  c:\\été"},
        {"0  c:\\\xE9t\xE9 \x80 \x81", L"0  c:\\été € \u0081"},
        {"\xC3\xA9\r\n\xE9\r\n\xC3\xA9\n\xE9\r\xC3\xA9", L"é\r\né\r\né\né\ré"},
        {"\xC3\xA9 \xE9\n\n", L"\u00C3\u00A9 é\n\n"},  // one line, not UTF-8 as a whole
        {"a\0\xE9"s, L"a\0é"s},
        {"\xF0\x9F\x94\xA7 \xEF\xBF\xBF \xF4\x8F\xBF\xBF", L"\U0001F527 \uFFFF \U0010FFFF"},
        {"ligne longue \xC3", L"ligne longue \u00C3"},  // cut off in a character
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(read(bytes), text) << bytes;
}

TEST(TextDecoding, KnowsUtf8ByItsTable) {
    // Over-long, past the last character, half a surrogate pair, continued where nothing began.
    for (const char* bytes : {"\xC0\xAF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
                              "\xED\xA0\x80", "\x80", "\xFF", "\xE2\x82"}) {
        EXPECT_EQ(read(bytes).size(), std::string_view(bytes).size()) << bytes;
    }
}

TEST(TextDecoding, ReadsAFileAsItsMarkSays) {
    const std::string utf8 = "\xEF\xBB\xBF";
    const std::string little = "\xFF\xFE";
    const std::string big = "\xFE\xFF";
    const std::pair<std::string, std::wstring> cases[] = {
        {utf8, L""},
        {utf8 + "0  \xC3\xA9\r\n", L"0  é\r\n"},
        {utf8 + "\xE9\r\n\xE2\x82\r\n\xC3\xA9",
         L"\uFFFD\r\n\uFFFD\r\né"},  // kept, but for what is none
        {little, L""},
        {little + "0\0\xE9\0\r\0\n\0\xAC\x20"s, L"0é\r\n€"},
        {big + "\0"s + "0\0\xE9\0\r\0\n\x20\xAC"s, L"0é\r\n€"},
        {little + "\x3D\xD8\x27\xDD"s, L"\U0001F527"},
        {little + "\x3D\xD8z\0\x27\xDDz\0\x3D\xD8"s, L"\uFFFDz\uFFFDz\uFFFD"},
        {little + "z\0\r"s, L"z\uFFFD"},  // half a character at the end
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(read(bytes), text) << bytes;
}
