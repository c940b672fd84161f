#include "common/text.h"

#include "unit/unit_test.h"

TEST(Text, LosesBlanksOnlyAndIsEqualInAnyCaseOfAccentedLetters) {
    EXPECT_EQ(trimmed(L"  a b  "), L"a b");
    EXPECT_EQ(trimmed(L"    "), L"");
    EXPECT_EQ(trimmed(L" \ta\x00a0 "), L"\ta\x00a0");
    EXPECT_TRUE(equalIgnoringCase(L"C:\\Été\\Pièce.SLDPRT", L"c:\\éTÉ\\pIÈCE.sldprt"));
    EXPECT_FALSE(equalIgnoringCase(L"c:\\ete", L"c:\\été"));
    EXPECT_FALSE(equalIgnoringCase(L"a", L"ab"));
}

TEST(TakeLine, EndsAtEveryKindOfLineEnd) {
    const std::pair<const wchar_t*, Texts> cases[] = {{L"a\r\nb", {L"a", L"b"}},
                                                      {L"\n\r\n\r\r\n", {L"", L"", L"", L""}},
                                                      {L"a\n\rb", {L"a", L"", L"b"}},
                                                      {L"a\r", {L"a"}},
                                                      {L"", {}}};
    for (const auto& [text, expected] : cases) {
        Texts lines;
        for (std::wstring_view rest = text; !rest.empty();) lines.emplace_back(takeLine(rest));
        EXPECT_EQ(lines, expected) << text;
    }
    // In bytes, of which neither other control characters nor those that look like line ends count.
    for (std::size_t length = 0; length < 40; ++length) {
        for (const char filler : {'a', '\t', '\x0E', '\x8A', '\x8D', '\xFF', '\0'}) {
            const std::string line(length, filler);
            for (const char* end : {"\r\n", "\n", "\r"}) {
                const std::string text = line + end + line;
                std::string_view rest = text;
                EXPECT_EQ(takeLine(rest), line);
                EXPECT_EQ(rest, line);
            }
        }
    }
}
