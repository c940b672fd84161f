// The tracking window's list commands: many lines at once, and where the pass goes on.

#include "ports/machine.h"
#include "tracking/tracking_texts.h"
#include "tracking/tracking_window.h"

bool TrackingWindow::anySelected() const {
    for (int i = 0; i <= pass().list().last; ++i) {
        if (List1.selected(i)) return true;
    }
    return false;
}

bool TrackingWindow::requireSelection(const wchar_t* reproach) {
    if (anySelected()) return true;
    platform_.messageBoxes.show(missingSelectionBox(reproach));
    return false;
}

bool TrackingWindow::confirm(const Question& question) {
    return platform_.messageBoxes.show(boxOf(question)) == MessageBoxes::Answer::Yes;
}

LineSelected TrackingWindow::selected() const {
    return [this](int line) { return List1.selected(line); };
}

void TrackingWindow::CmdChaF_Click() { changeSelection(kQuestionChaF, LineState::Done); }
void TrackingWindow::CmdChaV_Click() { changeSelection(kQuestionChaV, LineState::Seen); }

void TrackingWindow::changeSelection(const Question& question, LineState state) {
    if (!requireSelection(kNothingSelected) || !confirm(question)) return;
    runner_.change(selected(), state);
}

void TrackingWindow::CmdChaRaz_Click() {
    if (!requireSelection(kNothingSelectedToResume) || !confirm(kQuestionChaRaz)) return;
    runner_.reset(selected());
}

void TrackingWindow::CmdEliF_Click() { eliminateSelection(kQuestionEliF, Eliminate::DoneAndSeen); }
void TrackingWindow::CmdEliFV_Click() {
    eliminateSelection(kQuestionEliFV, Eliminate::DoneAndSeen);
}
void TrackingWindow::CmdEliV_Click() { eliminateSelection(kQuestionEliV, Eliminate::Seen); }

void TrackingWindow::eliminateSelection(const Question& question, Eliminate states) {
    if (!requireSelection(kNothingSelected) || !confirm(question)) return;
    runner_.eliminate(selected(), states);
}

void TrackingWindow::CmdPurge_Click() {
    if (!confirm(kQuestionPurge)) return;
    runner_.eliminate([](int) { return true; }, Eliminate::DoneAndSeen);
}

void TrackingWindow::CmdRepA_Click() {
    if (!requireSelection(kNothingSelectedToResume)) return;
    int first = 0;
    while (!List1.selected(first)) ++first;
    runner_.resumeAt(first);
}

void TrackingWindow::CmdDeSelect_Click() { List1.clearSelection(); }
