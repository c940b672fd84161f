// The program is killed while it saves the list: the old file or the new one is there, whole.

#include <iostream>

#include "driver/wait.h"
#include "scenario.h"
#include "tracking/form3_ids.h"

namespace endtoend {
namespace {

constexpr int kLines = 3000;
constexpr int kKills = 8;

class InterruptedSave : public Scenario {
 protected:
    InterruptedSave() {
        const std::string first = sandbox.AddDocument("premier.SLDPRT");
        std::string others;
        for (int i = 1; i < kLines; ++i) others += ListLine("0", first + std::to_string(i));
        before = ListLine("0", first) + others;
        after = ListLine("3", first) + others;
    }

    /// Saves the list and kills the program `milliseconds` later.
    void KillWhileSaving(DWORD milliseconds) {
        sandbox.WriteList(before);
        StartAndResume();
        app.Window("Tarnwick - suivi du travail -");
        app.Click(IDC_FORM3_CMDFICHIERLISTE);
        Sleep(milliseconds);
        app.Kill();
    }

    std::string before;
    std::string after;
};

TEST_F(InterruptedSave, LeavesTheOldFileOrTheNew) {
    cad.Start({"--hidden"});
    int replaced = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        KillWhileSaving(static_cast<DWORD>(kill * 2));
        const auto list = sandbox.ReadList();
        ASSERT_TRUE(list.has_value()) << "killed after " << kill * 2 << " ms";
        ASSERT_TRUE(*list == before || *list == after)
            << list->size() << " bytes, killed after " << kill * 2 << " ms";
        replaced += *list == after;
    }
    std::cout << replaced << " of " << kKills << " saves had ended before the kill\n";
}

}  // namespace
}  // namespace endtoend
