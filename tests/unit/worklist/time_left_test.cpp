#include "tracking/alone_window.h"
#include "unit/unit_test.h"

TEST(TimeLeft, IsToldByTheMedianOfTheLastTwentyDocuments) {
    TimeLeft left;
    EXPECT_EQ(left.forDocuments(5), std::nullopt);
    left.took(900);
    EXPECT_EQ(left.forDocuments(5), 4'500);
    for (int i = 0; i < 9; ++i) left.took(900);
    for (int i = 0; i < 10; ++i) left.took(60'000 * (i % 2));
    EXPECT_EQ(left.forDocuments(2), 1'800) << "those that took much longer count for no more";
    for (int i = 0; i < 11; ++i) left.took(100);
    EXPECT_EQ(left.forDocuments(8'000), 800'000) << "the first ones are forgotten";
}

TEST(TimeLeft, IsReadAsFarAsItCanBeKnown) {
    const std::pair<std::optional<std::int64_t>, const wchar_t*> cases[] = {
        {std::nullopt, L"inconnu"},         {29'999, L"moins d'une minute"},
        {30'000, L"environ une minute"},    {90'000, L"environ 2 minutes"},
        {3'569'000, L"environ 59 minutes"}, {3'570'000, L"environ 1 h 00"},
        {40'200'000, L"environ 11 h 10"},
    };
    for (const auto& [milliseconds, text] : cases) {
        EXPECT_EQ(timeLeftText(milliseconds), std::wstring(L"Temps restant : ") + text);
    }
}
