#include "common/numbers.h"

#include "unit/unit_test.h"

TEST(NumericValue, IsThatOfTheLeadingDigitsUpToTheLargestNumber) {
    const std::pair<const wchar_t*, std::int32_t> cases[] = {
        {L"", 0},         {L"abc", 0}, {L"007", 7}, {L"12  x", 12}, {L"3.9", 3},
        {L"12c:\\3", 12}, {L" 5", 0},  {L"-5", 0},  {L"\x0661", 0}};
    for (const auto& [text, value] : cases) EXPECT_EQ(numericValue(text), value) << text;
    EXPECT_EQ(numericValue(L"2147483646"), 2147483646);
    EXPECT_EQ(numericValue(L"2147483648"), 2147483647);
}

TEST(WholeNumber, IsSpelledInManyWaysAndNothingElseIsOne) {
    const std::pair<const wchar_t*, int> cases[] = {
        {L"1416", 1416},     {L"  -7 ", -7},       {L"+7", 7},           {L"-0", 0},
        {L"0000012", 12},    {L"12.", 12},         {L".5", 0},           {L"0.5", 0},
        {L"1.5", 2},         {L"2.5", 2},          {L"2,5", 2},          {L"2.5001", 3},
        {L"-1.5", -2},       {L"-2.5", -2},        {L"2.4999", 2},       {L"32767", 32767},
        {L"-32768", -32768}, {L"32767.49", 32767}, {L"-32768.5", -32768}};
    for (const auto& [text, value] : cases) EXPECT_EQ(wholeNumber(text), value) << text;
    for (const wchar_t* text : {L"", L"   ", L"Text1", L"12a", L"1 2", L"-", L"+", L".", L"--1",
                                L"1.2.3", L"1,2,3", L"0x10", L"1-"}) {
        EXPECT_EQ(raised([&] { wholeNumber(text); }), 13) << text;
    }
    for (const wchar_t* text : {L"32768", L"-32769", L"32767.5", L"-32768.51", L"65536", L"1048576",
                                L"4294967296", L"99999999999999999999999999"}) {
        EXPECT_EQ(raised([&] { wholeNumber(text); }), 6) << text;
    }
}
