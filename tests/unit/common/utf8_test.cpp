#include "common/encoding.h"
#include "unit/unit_test.h"

namespace {

std::string utf8(std::wstring_view text) {
    std::string result = "-";
    appendUtf8(result, text);
    return result.substr(1);
}

}  // namespace

// The last character has two units where wide characters have 16 bits.
TEST(Utf8, HoldsEveryCharacter) {
    using std::string_view_literals::operator""sv;
    EXPECT_EQ(utf8(L"a\0\x7F\x80\xE9\u20AC\U0001F4D0"sv),
              "a\0\x7F\xC2\x80\xC3\xA9\xE2\x82\xAC\xF0\x9F\x93\x90"sv);
    EXPECT_EQ(wideText(utf8(L"a\0\x7F\x80\xE9\u20AC\U0001F4D0"sv)),
              L"a\0\x7F\x80\xE9\u20AC\U0001F4D0"sv);
}

TEST(Utf8, HoldsNoHalfCharacter) {
    for (const wchar_t* text : {L"a\xD83D", L"\xDCD0z", L"\xDCD0\xD83D"}) {
        EXPECT_EQ(raised([&] { utf8(text); }), 5);
    }
}
