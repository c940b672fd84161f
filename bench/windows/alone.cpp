// What a pass that goes on alone adds to its calls, and how soon it stops.

#include <windows.h>

#include <algorithm>

#include "bare_document.h"
#include "driver/app_driver.h"
#include "driver/settings.h"
#include "driver/text.h"
#include "driver/trial_cad.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "rows.h"
#include "tracking/tracking_ids.h"

namespace {

/// The program, with a pass of so many documents that is about to go on alone.
class PassAlone {
 public:
    PassAlone(int documents, const std::vector<std::string>& cadOptions) {
        std::string list;
        for (int i = 0; i < documents; ++i) {
            path_ = sandbox_.addDocument(std::to_string(i) + ".SLDPRT");
            list += "0  " + path_ + "\r\n";
        }
        sandbox_.writeList(list);
        trial_.start(cadOptions);
        app_.start();
        app_.click(IDC_FORM2_CMDOK);
        app_.waitForText(IDC_FORM3_NBFICH1, "1");
        app_.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
        app_.chooseInSystemMenu("Tarnwick - suivi du travail -", IDM_FORM3_SEUL);
    }

    void begin() const { app_.answerBox(IDYES); }
    void waitForEnd() const {
        while (!app_.showsBox()) Sleep(1);
    }
    void waitForLine(int line) const {
        while (std::stoi(app_.textOf(IDC_FORM3_NBFICH1)) < line) Sleep(1);
    }
    /// What the program holds once it has come to this one-based line.
    driver::Resources heldAt(int line) const {
        waitForLine(line);
        return app_.resourcesInUse();
    }
    void pressEscape() const {
        PostMessageW(app_.control(IDC_FORM3_LIST1), WM_KEYDOWN, VK_ESCAPE, 1);
    }
    std::wstring lastDocument() const { return driver::wide(path_); }

 private:
    driver::Sandbox sandbox_;
    driver::Settings settings_;
    driver::TrialCad trial_{sandbox_};
    driver::AppDriver app_{sandbox_};
    std::string path_;
};

/// A session that answers each of a document's calls in 50 ms. It is hidden, since its own drawing
/// is no work of ours.
std::vector<std::string> slowSession() {
    std::vector<std::string> options{"--hidden"};
    for (const char* call : {"OpenDoc6", "ActivateDoc2", "Visible", "ForceRebuild3", "GetTitle",
                             "ViewZoomtofit2", "save2", "closedoc"}) {
        options.insert(options.end(), {"--delay", std::string(call) + ":50"});
    }
    return options;
}

}  // namespace

Row documentsAlone(const Setting& setting) {
    const int documents = setting.rounds.most == 1 ? 3 : 40;
    const PassAlone pass(documents, slowSession());
    const double alone = timed({[&] {
        pass.begin();
        pass.waitForEnd();
    }});
    BareDocument bare(pass.lastDocument());
    const double eight = timed({[&] {
                             for (int i = 0; i < documents; ++i) bare.eightCalls();
                         }}) /
                         documents;
    // The first document was open before, and none is opened after the last.
    constexpr int kCalls = 8;
    constexpr int kCallsToOpen = 6;
    const double ratio = alone / (kCalls * documents - kCallsToOpen) / (eight / kCalls);
    return {.work = "documents that a pass goes through alone, each call answered in 50 ms",
            .floor = "the same calls, bare",
            .ratios = {{0, ratio}},
            .goal = "<= 1.05",
            .judged = ratio,
            .limit = 1.05,
            .note = "floor " + milliseconds(eight) + " a document"};
}

Row stopOfAlone(const Setting& setting) {
    constexpr double kLimit = 200;
    double longest = 0;
    for (int round = 0; round < setting.rounds.least; ++round) {
        const PassAlone pass(500, {"--hidden"});
        pass.begin();
        pass.waitForLine(20);
        longest = std::max(longest, timed({[&] {
                               pass.pressEscape();
                               pass.waitForEnd();
                           }}));
    }
    return {.work = "from Esc to the box, while it goes alone",
            .floor = milliseconds(kLimit),
            .ratios = {{0, longest / kLimit}},
            .goal = "<= 1.00",
            .judged = longest,
            .limit = kLimit,
            .note = "the longest of all, " + milliseconds(longest)};
}

Row heldAlone(const Setting& setting) {
    const int documents = setting.sizes.back();
    const PassAlone pass(documents, {"--hidden"});
    pass.begin();
    const driver::Resources before = pass.heldAt(std::min(100, documents / 5));
    const driver::Resources after = pass.heldAt(documents - 10);
    // A thread that COM happens to start on the way has some.
    constexpr unsigned kOfAThread = 5;
    require(before.gdiObjects > 0 && after.gdiObjects <= before.gdiObjects + kOfAThread,
            "no more GDI objects");
    require(after.kernelHandles <= before.kernelHandles + kOfAThread, "no more handles");
    require(after.windows <= before.windows, "no more windows");
    const double ratio =
        static_cast<double>(after.memoryBytes) / static_cast<double>(before.memoryBytes);
    return {.work = "memory near the end of a pass that goes on alone",
            .floor = "near its beginning",
            .ratios = {{documents, ratio}},
            .goal = "<= 1.15",
            .judged = ratio,
            .limit = 1.15,
            .note = before.describe() + "; then " + after.describe()};
}
