// How soon the program's window answers, and stops, while it searches.

#include <windows.h>

#include <algorithm>

#include "driver/app_driver.h"
#include "driver/settings.h"
#include "driver/text.h"
#include "driver/trial_cad.h"
#include "driver/winapi.h"
#include "rows.h"
#include "sample_tree.h"
#include "selection/selection_ids.h"

namespace {

/// The program, with its selection window on a tree.
class SearchingProgram {
 public:
    explicit SearchingProgram(const std::filesystem::path& tree) {
        trial_.start({"--hidden", "--working-directory", driver::utf8(tree.wstring())});
        app_.start();
        app_.window("Mervale 2002 - Tarnwick");
        app_.choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM ; *.SLDDRW");
        list_ = app_.control(IDC_FORM1_LIST1);
    }

    /// Has it search with sub-directories, or without. Presses before the end of a search are
    /// dropped: waits for it, and presses again if the press came too early.
    void toggle() const {
        const bool before = checked();
        while (checked() == before) {
            while (app_.textOf(IDC_FORM1_LABEL4) == "Recherche…") Sleep(1);
            app_.click(IDC_FORM1_SOUSREP);
            for (int i = 0; i < 1000 && checked() == before; ++i) Sleep(1);
        }
    }
    int found() const { return static_cast<int>(SendMessageW(list_, LB_GETCOUNT, 0, 0)); }
    void answer() const { SendMessageW(GetAncestor(list_, GA_ROOT), WM_NULL, 0, 0); }

    /// The time from the key that stops a search to the box that says so, unless all was found by
    /// then.
    double stop(int all) const {
        const double time = timed({[&] {
            PostMessageW(list_, WM_KEYDOWN, VK_ESCAPE, 1);
            while (!app_.showsBox() && found() != all) Sleep(1);
        }});
        if (app_.showsBox()) app_.answerBox(IDOK);
        return time;
    }

 private:
    bool checked() const { return app_.checked(IDC_FORM1_SOUSREP); }

    driver::Sandbox sandbox_;
    driver::Settings settings_;
    driver::TrialCad trial_{sandbox_};
    driver::AppDriver app_{sandbox_};
    HWND list_ = nullptr;
};

Row rowOf(const char* work, double longest, double limit) {
    return {.work = work,
            .floor = milliseconds(limit),
            .ratios = {{0, longest / limit}},
            .goal = "<= 1.00",
            .judged = longest,
            .limit = limit,
            .note = "the longest of all, " + milliseconds(longest)};
}

}  // namespace

Row answerWhileSearching(const Setting& setting) {
    const int documents = setting.sizes.back();
    const SearchingProgram program(documentTree(setting.directory, documents));
    double longest = 0;
    for (int round = 0; round < setting.rounds.least; ++round) {
        program.toggle();
        while (program.found() != documents) {
            longest = std::max(longest, timed({[&] { program.answer(); }}));
        }
        program.toggle();
    }
    return rowOf("the window's answer while it searches", longest, 100);
}

Row stopOfSearch(const Setting& setting) {
    const int documents = setting.sizes.back();
    const SearchingProgram program(documentTree(setting.directory, documents));
    double longest = 0;
    for (int round = 0; round < setting.rounds.least; ++round) {
        program.toggle();
        Sleep(100);
        longest = std::max(longest, program.stop(documents));
        program.toggle();
    }
    return rowOf("from Esc to the box, while it searches", longest, 200);
}
