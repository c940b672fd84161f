#include "searchfolders/configuration_file.h"

#include <gtest/gtest.h>

#include "unit/raised.h"

namespace {

constexpr auto kMarker = L"Configuration:";

TEST(ConfFile, StoresEveryLineByTheRules) {
    struct Case {
        const wchar_t* text;
        int count;                   // configurations
        long row;                    // the row to look at
        const wchar_t* expected[4];  // its first entries
    };
    const Case cases[] = {
        {L"  c:\\avant\r\nConfiguration: A\r\n", 1, 0, {L"", L"c:\\avant", L"", L""}},
        {L"configuration: b\nc:\\c\n", 1, 1, {L"b", L"c:\\c", L"", L""}},
        {L"ABC CONFIGURATION: d\r\n", 1, 1, {L"ION: d", L"", L"", L""}},
        {L"Configuration:A\r\n' note\r\n\r\n c:\\d\r\n", 1, 1, {L"A", L"' note", L"", L"c:\\d"}},
        {L"Configuration:\r\nc:\\e\r\nConfiguration:f\r\n", 2, 1, {L"", L"c:\\e", L"", L""}},
    };
    for (const Case& one : cases) {
        Configurations configs;
        parseConfFile(one.text, kMarker, configs);
        EXPECT_EQ(configs.NbConf, one.count) << one.text;
        for (long j = 0; j < 4; ++j) {
            EXPECT_EQ(configs.ConfRep[one.row][j], one.expected[j]) << one.text << j;
        }
    }
}

TEST(ConfFile, HoldsAsMuchAsTheTable) {
    const auto read = [](int configurations, int directories) {
        std::wstring text;
        for (int i = 0; i < configurations; ++i) text += L"Configuration:  c\r\n";
        for (int i = 0; i < directories; ++i) text += L"   c:\\d\r\n";
        Configurations configs;
        parseConfFile(text, kMarker, configs);
        EXPECT_EQ(configs.NbConf, configurations);
        EXPECT_EQ(configs.ConfRep[configurations][directories], L"c:\\d");
    };
    EXPECT_EQ(raised([&] { read(50, 200); }), 0);
    EXPECT_EQ(raised([&] { read(51, 1); }), 9);
    EXPECT_EQ(raised([&] { read(1, 201); }), 9);
}

TEST(ConfFile, IsWrittenBackWithItsHolesClosed) {
    const std::wstring clean =
        L"Configuration:  Projet A\r\n   c:\\a\r\n   \\\\serveur\\b c\r\nConfiguration:  Été\r\n";
    const std::pair<std::wstring, std::wstring> cases[] = {
        {clean, clean},
        {L"c:\\perdu\nconfiguration:x\n c:\\a \n\nc:\\b",
         L"Configuration:  x\r\n   c:\\a\r\n   c:\\b\r\n"},
        {L"Configuration:\r\n   c:\\sans nom\r\nConfiguration:  y\r\n", L"Configuration:  y\r\n"},
    };
    for (const auto& [read, written] : cases) {
        Configurations configs;
        parseConfFile(read, kMarker, configs);
        EXPECT_EQ(formatConfFile(configs, kMarker), written);
    }
}

}  // namespace
