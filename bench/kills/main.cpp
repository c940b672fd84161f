// tarnwick-kills.exe N [alone]: kills the program N times at random moments of a pass that is
// advanced by presses or goes on alone. Counts the marks that were made before the last call and
// are not offered at the next start, and the documents that were marked although they were not
// saved. Ends with 1 when there are any, or when a start fails.

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "driver/app_driver.h"
#include "driver/sandbox.h"
#include "driver/settings.h"
#include "driver/trial_cad.h"
#include "driver/wait.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

/// A pass that goes on alone is quicker than who presses.
struct Round {
    int documents;
    int kills;
};
constexpr Round kPressed{200, 50};
constexpr Round kAlone{200, 3};
const std::string kTracking = "Tarnwick - suivi du travail -";
const std::string kMarked = "Documents marqués depuis : ";

class Kills {
 public:
    explicit Kills(bool alone) : alone_(alone), round_(alone ? kAlone : kPressed) {}

    void run(int kills) {
        for (int kill = 0; kill < kills; ++kill) {
            if (kill % round_.kills == 0) beginAnew();
            try {
                start();
                workAndKill();
            } catch (const TimedOut& late) {
                std::cerr << "kill " << kill << ": " << late.what() << '\n' << app_.describe();
                throw;
            }
        }
    }

    int lost = 0;
    int unsaved = 0;
    int failedStarts = 0;

 private:
    void beginAnew() {
        if (begun_) cad_.close();
        begun_ = true;
        std::string list;
        for (int i = 0; i < round_.documents; ++i) {
            list += "0  " + sandbox_.addDocument(std::to_string(i) + ".SLDPRT") + "\r\n";
        }
        sandbox_.writeList(list);
        // The list before had the same bytes: its marks would be taken for this one's.
        std::filesystem::remove(sandbox_.directory() / "tarnwick.reprise");
        cad_.start({"--hidden"});
        seen_ = marks_ = 0;
    }

    /// Starts the program on the list, accepts the marks that it offers, and counts them.
    void start() {
        app_.start();
        app_.click(IDC_FORM2_CMDOK);
        size_t offered = 0;
        constexpr size_t kCallsAtStart = 3;
        waitFor("a box or the first document", [&] {
            return app_.showsBox() || cad_.calls().size() > seen_ + kCallsAtStart ||
                   !app_.running();
        });
        while (app_.showsBox()) {
            const std::string text = app_.box().text();
            if (const auto at = text.find(kMarked); at != std::string::npos) {
                offered = std::stoul(text.substr(at + kMarked.size()));
            }
            app_.answerBox(IDYES);
            Sleep(30);
        }
        failedStarts += !app_.running();
        if (offered < marks_) lost += static_cast<int>(marks_ - offered);
        marks_ = offered;
    }

    void workAndKill() {
        alone_ ? goAlone() : pressOn();
        app_.kill();
        marks_ += newMarks();
    }

    void pressOn() {
        HWND button = app_.control(IDC_FORM3_CMDSUIV);
        const ULONGLONG end = GetTickCount64() + random_() % 400;
        while (GetTickCount64() < end) {
            post(button, BM_CLICK);
            Sleep(static_cast<DWORD>(random_() % 25));
        }
    }

    /// Passes over the document whose opening the last run did not survive, and goes on alone.
    void goAlone() {
        waitFor("the pass", [&] {
            if (app_.showsBox()) app_.answerBox(IDYES);
            return std::ranges::count(app_.shownWindows(), kTracking) > 0 && !app_.showsBox();
        });
        askToGoAlone();
        app_.answerBox(IDYES);
        Sleep(static_cast<DWORD>(random_() % 400));
    }

    /// What comes before the end of a command is dropped, so it is chosen until the question is
    /// asked.
    void askToGoAlone() {
        waitFor("the question", [&] {
            if (app_.showsBox()) return true;
            app_.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
            for (int i = 0; i < 100 && !app_.showsBox(); ++i) Sleep(10);
            return app_.showsBox();
        });
    }

    /// A document has been marked if it was closed and the next one was asked for.
    size_t newMarks() {
        const auto calls = cad_.calls();
        size_t marks = 0;
        for (size_t i = seen_; i + 1 < calls.size(); ++i) {
            const bool marked =
                calls[i].find("closedoc") == 0 && calls[i + 1].find("OpenDoc6") == 0;
            marks += marked;
            unsaved += marked && (i == 0 || calls[i - 1].find("save2") == std::string::npos);
        }
        seen_ = calls.size();
        return marks;
    }

    const Settings settings_;
    Sandbox sandbox_;
    TrialCad cad_{sandbox_};
    AppDriver app_{sandbox_};
    std::mt19937 random_{1};
    const bool alone_;
    const Round round_;
    bool begun_ = false;
    size_t seen_ = 0;   ///< how many calls have been looked at
    size_t marks_ = 0;  ///< how many the next start must offer
};

}  // namespace
}  // namespace driver

int main(int count, char** arguments) {
    const int kills = count > 1 ? std::atoi(arguments[1]) : 20;
    driver::Kills run(count > 2);
    run.run(kills);
    std::cout << kills << " kills: " << run.lost << " marks lost, " << run.unsaved
              << " marked unsaved, " << run.failedStarts << " starts failed\n";
    return run.lost + run.unsaved + run.failedStarts > 0 ? 1 : 0;
}
