// The tracking window's undo, and the pass that goes on alone.

#include <memory>

#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/machine.h"
#include "ports/search.h"
#include "tracking/alone_window.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_texts.h"
#include "tracking/tracking_window.h"

void TrackingWindow::showChoices() {
    window_->setMenuItemEnabled(IDM_FORM3_REVENIR, pass().canUndo());
    window_->setMenuItemEnabled(IDM_FORM3_SEUL, runner_.hasDocument());
}

void TrackingWindow::Revenir_Click() { runner_.undo(); }

void TrackingWindow::Seul_Click() {
    takePointer();
    if (!runner_.hasDocument()) return;
    const int documents = runner_.documentsLeft();
    const auto answer = platform_.messageBoxes.show(aloneQuestion(documents));
    if (answer == MessageBoxes::Answer::Yes) {
        platform_.messageBoxes.show(aloneEndBox(goAlone(documents)));
    }
}

AloneOutcome TrackingWindow::goAlone(int documents) {
    const Awake awake(platform_.power);
    const Searching watched(platform_.search.watch, *this, SearchKind::Alone);
    alone_ = std::make_unique<AloneWindow>(platform_.windows, platform_.clock, documents);
    alone_->showBeside(*window_);
    const AloneOutcome outcome = runner_.goAlone([&] {
        alone_->begin();
        showAlone();
        return goesOn();
    });
    // Whoever closed the window during the last command wants the program to end, too.
    goesOn();
    alone_.reset();
    return outcome;
}

void TrackingWindow::showAlone() {
    if (alone_) alone_->show(pass().currentPath(), runner_.documentsLeft());
}

bool TrackingWindow::goesOn() {
    try {
        return platform_.search.watch.serve();
    } catch (const ProgramEnd&) {
        runner_.end();
        throw;
    }
}
