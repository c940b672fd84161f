#include "searchfolders/configuration_file.h"

#include "unit/unit_test.h"

TEST(ConfigurationFile, StoresEveryLineByTheRules) {
    const struct {
        const wchar_t* text;
        int count;                   // configurations
        int row;                     // the row to look at
        const wchar_t* expected[4];  // its first entries
    } cases[] = {
        {L"  c:\\avant\r\nConfiguration: A\r\n", 1, 0, {L"", L"c:\\avant", L"", L""}},
        {L"configuration: b\nc:\\c\n", 1, 1, {L"b", L"c:\\c", L"", L""}},
        {L"ABC CONFIGURATION: d\r\n", 1, 1, {L"ION: d", L"", L"", L""}},
        {L"Configuration:A\r\n' note\r\n\r\n c:\\d\r\n", 1, 1, {L"A", L"' note", L"", L"c:\\d"}},
        {L"Configuration:\r\nc:\\e\r\nConfiguration:f\r\n", 2, 1, {L"", L"c:\\e", L"", L""}},
    };
    for (const auto& c : cases) {
        Configurations configs;
        parseConfigurationFile(c.text, configs, {});
        EXPECT_EQ(configs.last, c.count) << c.text;
        for (int j = 0; j < 4; ++j) EXPECT_EQ(configs.rows[c.row][j], c.expected[j]) << c.text << j;
    }
}

TEST(ConfigurationFile, HoldsAsMuchAsTheTableAndNamesTheLineThatIsTooMuch) {
    const auto errorFor = [](int configurations, int directories) {
        std::wstring text;
        for (int i = 0; i < configurations; ++i) text += L"Configuration:  c\r\n";
        for (int i = 0; i < directories; ++i) text += L"   c:\\d\r\n";
        Configurations configs;
        return raisedError([&] { parseConfigurationFile(text, configs, L"c:\\x.cfg"); });
    };
    EXPECT_EQ(errorFor(50, 200).number, 0);
    EXPECT_EQ(errorFor(51, 1).number, 9);
    EXPECT_NE(errorFor(51, 1).text.find(L"\r\nConfigurations : 50 au plus."), std::wstring::npos);
    const RuntimeError error = errorFor(1, 201);
    EXPECT_EQ(error.number, 9);
    EXPECT_TRUE(error.text.ends_with(
        L"\r\nRépertoires d'une configuration : 200 au plus.\r\nLigne 202 de c:\\x.cfg"))
        << error.text;
}

TEST(ConfigurationFile, IsWrittenBackWithItsHolesClosed) {
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
        parseConfigurationFile(read, configs, {});
        EXPECT_EQ(formatConfigurationFile(configs), written);
    }
}
