#include "worklist/report.h"

#include <gtest/gtest.h>

#include "fakes/fake_clock.h"
#include "worklist/list_file.h"
#include "worklist/work_list.h"

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
