// The program is killed while it saves the list: the old file or the new one is there, whole.

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "driver/wait.h"
#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

constexpr int kLines = 8000;
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

    /// Whether the new list is being written beside the old one.
    bool Writing() const {
        const auto entries = std::filesystem::directory_iterator(sandbox.Directory());
        return std::any_of(begin(entries), end(entries),
                           [](const auto& entry) { return entry.path().extension() == ".tmp"; });
    }

    /// Saves the list and kills the program while the new list is written, if that is seen, or
    /// soon after.
    void KillWhileSaving() {
        sandbox.WriteList(before);
        StartAndResume();
        app.Window("Tarnwick - suivi du travail -");
        app.Click(IDC_FORM3_CMDFICHIERLISTE);
        for (const ULONGLONG end = GetTickCount64() + 100; GetTickCount64() < end && !Writing();) {
        }
        app.Kill();
        unfinished += RemoveTemporaryFiles();
    }

    size_t RemoveTemporaryFiles() const {
        std::vector<std::filesystem::path> left;
        for (const auto& entry : std::filesystem::directory_iterator(sandbox.Directory())) {
            if (entry.path().extension() == ".tmp") left.push_back(entry.path());
        }
        for (const auto& file : left) std::filesystem::remove(file);
        return left.size();
    }

    size_t unfinished = 0;  ///< new lists that a kill left beside the old one
    std::string before;
    std::string after;
};

TEST_F(InterruptedSave, LeavesTheOldFileOrTheNew) {
    cad.Start({"--hidden"});
    int replaced = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        KillWhileSaving();
        const auto list = sandbox.ReadList();
        ASSERT_TRUE(list.has_value());
        ASSERT_TRUE(*list == before || *list == after) << list->size() << " bytes";
        replaced += *list == after;
    }
    std::cout << replaced << " of " << kKills << " saves had ended before the kill, " << unfinished
              << " were cut off in the middle\n";
}

}  // namespace
}  // namespace driver
