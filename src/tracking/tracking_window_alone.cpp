// The tracking window's way back, and its way on without a hand on it.

#include <cstdint>
#include <optional>
#include <string>

#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/machine.h"
#include "ports/platform.h"
#include "ports/search.h"
#include "tracking/alone_texts.h"
#include "tracking/alone_window.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"
#include "worklist/time_left.h"

namespace {

/// Tells how far it has come, before each document and at what pace they go by.
class AloneTold {
 public:
    AloneTold(Platform& platform, const Window& beside, int total)
        : clock_(platform.clock), window_(platform.windows), total_(total) {
        window_.showBeside(beside);
    }

    void tell(const std::wstring& document, int left) {
        const std::int64_t now = clock_.ticks();
        if (began_) timeLeft_.took(now - *began_);
        began_ = now;
        window_.show({total_ - left, total_, document, timeLeft_.forDocuments(left)});
    }

 private:
    const Clock& clock_;
    AloneWindow window_;
    int total_;
    TimeLeft timeLeft_;
    std::optional<std::int64_t> began_;  ///< the document before
};

}  // namespace

void TrackingWindow::showChoices() {
    window_->setMenuItemEnabled(IDM_FORM3_REVENIR, pass().canUndo());
    window_->setMenuItemEnabled(IDM_FORM3_SEUL, runner_.hasDocument());
}

void TrackingWindow::Revenir_Click() { runner_.undo(); }

void TrackingWindow::Seul_Click() {
    takePointer();
    const int documents = runner_.documentsLeft();
    if (documents == 0) return;
    const auto answer = platform_.messageBoxes.show(aloneQuestion(documents));
    if (answer == MessageBoxes::Answer::Yes) {
        platform_.messageBoxes.show(aloneEndBox(goAlone(documents)));
    }
}

AloneOutcome TrackingWindow::goAlone(int documents) {
    const Awake awake(platform_.power);
    const Searching watched(platform_.search.patience, *this, SearchKind::Alone);
    AloneTold told(platform_, *window_, documents);
    return runner_.goAlone([&] {
        told.tell(pass().currentPath(), runner_.documentsLeft());
        return goesOn();
    });
}

bool TrackingWindow::goesOn() {
    try {
        return platform_.search.patience.serve();
    } catch (const ProgramEnd&) {
        runner_.end();
        throw;
    }
}
