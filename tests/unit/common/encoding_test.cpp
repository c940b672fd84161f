#include "common/encoding.h"

#include "unit/unit_test.h"

using std::string_literals::operator""s;
using std::string_view_literals::operator""sv;

using Readings = std::vector<std::pair<std::string, std::wstring>>;

/// How files of these bytes are read.
static void expectRead(const Readings& all) {
    for (const auto& [bytes, text] : all) EXPECT_EQ(wideText(textInUtf8(bytes)), text) << bytes;
}

static std::string utf8(std::wstring_view text) {
    std::string result;
    appendUtf8(result, text);
    return result;
}

TEST(TextDecoding, TakesEachLineAsUtf8OrElseInTheCodePage) {
    expectRead({
        {"", L""},
        {"0  c:\\\xC3\xA9t\xC3\xA9", L"0  c:\\été"},
        {"0  c:\\\xE9t\xE9 \x80 \x81", L"0  c:\\été € \u0081"},
        {"\xC3\xA9\r\n\xE9\r\n\xC3\xA9\n\xE9\r\xC3\xA9", L"é\r\né\r\né\né\ré"},
        {"\xC3\xA9 \xE9\n\n", L"\u00C3\u00A9 é\n\n"},  // one line, not UTF-8 as a whole
        {"a\0\xE9"s, L"a\0é"s},
        {"\xF0\x9F\x94\xA7 \xEF\xBF\xBF \xF4\x8F\xBF\xBF", L"\U0001F527 \uFFFF \U0010FFFF"},
        {"ligne longue \xC3", L"ligne longue \u00C3"},  // cut off in a character
    });
}

TEST(TextDecoding, KnowsUtf8ByItsTable) {
    // Over-long, past the last character, half a surrogate pair, continued where nothing began.
    for (const char* bytes : {"\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",
                              "\xF4\x90\x80\x80", "\xED\xA0\x80", "\x80", "\xFF", "\xE2\x82"}) {
        EXPECT_EQ(wellFormedLength(bytes), 0U) << bytes;
        EXPECT_NE(textInUtf8(bytes), bytes);
    }
}

TEST(TextDecoding, ReadsAFileAsItsMarkSays) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string little = "\xFF\xFE";
    const std::string big = "\xFE\xFF";
    expectRead({
        {mark, L""},
        {mark + "0  \xC3\xA9\r\n", L"0  é\r\n"},
        {mark + "\xE9\r\n\xE2\x82\r\n\xC3\xA9", L"\uFFFD\r\n\uFFFD\r\né"},  // what is none is lost
        {little, L""},
        {little + "0\0\xE9\0\r\0\n\0\xAC\x20"s, L"0é\r\n€"},
        {big + "\0"s + "0\0\xE9\0\r\0\n\x20\xAC"s, L"0é\r\n€"},
        {little + "\x3D\xD8\x27\xDD"s, L"\U0001F527"},
        {little + "\x3D\xD8z\0\x27\xDDz\0\x3D\xD8"s, L"\uFFFDz\uFFFDz\uFFFD"},
        {little + "z\0\r"s, L"z\uFFFD"},  // half a character at the end
    });
}

// The last character has two units where wide characters have 16 bits; half of one is none.
TEST(Utf8, HoldsEveryCharacter) {
    const auto text = L"a\0\x7F\x80\xE9\u20AC\U0001F4D0"sv;
    EXPECT_EQ(utf8(text), "a\0\x7F\xC2\x80\xC3\xA9\xE2\x82\xAC\xF0\x9F\x93\x90"sv);
    EXPECT_EQ(wideText(utf8(text)), text);
    for (const wchar_t* half : {L"a\xD83D", L"\xDCD0z", L"\xDCD0\xD83D"}) {
        EXPECT_EQ(raised([&] { utf8(half); }), 5);
    }
}
