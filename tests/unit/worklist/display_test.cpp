// What a user reads of a list: its lines, the report, the time that is left.

#include "fakes/fake_services.h"
#include "tracking/alone_window.h"
#include "unit/unit_test.h"
#include "worklist/list_display.h"
#include "worklist/list_file.h"
#include "worklist/report.h"

TEST(DisplayLine, IsNumberLabelAndPath) {
    EXPECT_EQ(displayLine(122, L" Vu ", L"c:\\a\\b\\f", 1), L"0123   Vu c:\\..\\b\\f");
    EXPECT_EQ(displayLine(0, L" X   ", L"c:\\f", 1), L"0001   X   ");
    EXPECT_EQ(displayLine(9999, L"", L"x", 0), L"10000  x");
    const std::wstring deep = L"c:" + std::wstring(40, L'\\') + L"f";
    EXPECT_EQ(displayLine(0, L"", deep, 0), L"0001  " + deep);
    EXPECT_EQ(raised([&] { displayLine(0, L"", deep, 1); }), 9);
}

TEST(StateLabels, BelongToExactCodes) {
    const std::pair<const wchar_t*, std::vector<const char*>> labels[] = {
        {L"              ", {"0", "10"}},
        {L" Fait          ", {"1", "11"}},
        {L" Vu            ", {"2", "12"}},
        {L" EnCours  ", {"3", "13"}},
        {L"none", {"", "4", "00", "01", "110", "1 ", "x"}}};
    for (const auto& [label, codes] : labels) {
        for (const char* code : codes) {
            EXPECT_EQ(labelOf(StateCode(code)).value_or(L"none"), label) << code;
        }
    }
}

TEST(shortPath, HidesTheFirstLevels) {
    constexpr wchar_t kPath[] = L"C:\\A\\B\\C\\f.SLDPRT";
    const std::tuple<int, const wchar_t*, const wchar_t*> cases[] = {
        {0, kPath, L""},
        {-1, kPath, L""},
        {1, kPath, L"C:\\..\\B\\C\\f.SLDPRT"},
        {2, kPath, L"C:\\..\\..\\C\\f.SLDPRT"},
        {4, kPath, L"C:\\..\\..\\..\\f.SLDPRT"},
        {1, L"C:\\f.SLDPRT", L""},  // in the root: no level to hide
        {1, L"f.SLDPRT", L""},      // a bare name
        {1, L"C:\\A\\", L""},       // a trailing backslash hides no level
        {1, L"C:\\A\\B\\", L"C:\\..\\B\\"},
        {1, L"C:\\\\f", L"C:\\..\\f"},  // an empty level is a level
        {3, L"\\\\serveur\\plans\\f", L"\\\\\\..\\..\\..\\f"},
        {1, L"x\\\\y", L"x\\\\..\\y"},               // the "drive" is always two characters
        {9, L"c:\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\\f",  // sixteen, the most
         L"c:\\..\\..\\..\\..\\..\\..\\..\\..\\..\\\\\\\\\\\\\\f"},
    };
    for (const auto& [depth, path, shown] : cases) EXPECT_EQ(shortPath(depth, path), shown) << path;
    const std::wstring sixteen = L"c:" + std::wstring(16, L'\\') + L"f";
    EXPECT_EQ(raised([&] { shortPath(1, sixteen + L"\\"); }), 0) << "the last one is no level";
    for (const int depth : {0, 1})
        EXPECT_EQ(raised([&] { shortPath(depth, L"c:\\" + sixteen); }), 9);
}

TEST(Report, TellsOfEachLineWhatHappenedToIt) {
    WorkList list;
    parseListFile(
        "1  c:\\été\\a;b.SLDPRT\n2  c:\\\"b\".SLDPRT\n12  c:\\c.SLDPRT\n?  c:\\d\n3  =e\n0  @f;\n",
        list, L"");
    constexpr std::int64_t kMidnight = 20'000LL * 86'400;
    list.lines.edit(0)->history = {kMidnight + 5 * 3600 + 62, 0, Saved::Yes, {}};
    list.lines.edit(1)->history = {
        kMidnight, 754, Saved::No, {.saving = Remark::Saving::Refused, .savingNumber = 18}};
    list.lines.edit(4)->history.secondsOpen = 12;
    EXPECT_EQ(reportOf(list, FakeClock()),
              "\xEF\xBB\xBFN°;Etat;Document;Marqué le;Durée (s);Enregistré;Remarque\r\n"
              "1;Fait;\"c:\\été\\a;b.SLDPRT\";2025-11-21 06:01:02;0;oui;\r\n"
              "2;Vu;\"c:\\\"\"b\"\".SLDPRT\";2025-11-21 01:00:00;754;non;Non enregistré : document "
              "en lecture seule, fichier verrouillé (18)\r\n"
              "3;Vu;c:\\c.SLDPRT;;;;\r\n"
              "4;Vu;c:\\d;;;;\r\n"
              "5;En cours;'=e;;12;;\r\n"
              "6;A faire;\"'@f;\";;;;\r\n");
}

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
