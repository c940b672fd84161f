// The tracking window's list commands: many lines at once, and where the pass goes on.

#include "cad/cad_session.h"
#include "common/numbers.h"
#include "ports/platform.h"
#include "tracking/tracking_texts.h"
#include "tracking/tracking_window.h"

bool TrackingWindow::anySelected() const {
    for (int i = 0; i <= pass_.list().last; ++i) {
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

void TrackingWindow::CmdChaF_Click() { changeSelection(kQuestionChaF, state::kDone); }
void TrackingWindow::CmdChaV_Click() { changeSelection(kQuestionChaV, state::kSeen); }

void TrackingWindow::changeSelection(const Question& question, std::string_view code) {
    if (!requireSelection(kNothingSelected) || !confirm(question)) return;
    followEdit(pass_.change(selected(), code));
    settle();
}

void TrackingWindow::CmdChaRaz_Click() {
    if (!requireSelection(kNothingSelectedToResume) || !confirm(kQuestionChaRaz)) return;
    pass_.reset(selected());
    followEdit(true);
    cad_.bringForward();
    settle();
}

void TrackingWindow::CmdEliF_Click() { eliminateSelection(kQuestionEliF, Eliminate::DoneAndSeen); }
void TrackingWindow::CmdEliFV_Click() {
    eliminateSelection(kQuestionEliFV, Eliminate::DoneAndSeen);
}
void TrackingWindow::CmdEliV_Click() { eliminateSelection(kQuestionEliV, Eliminate::Seen); }

void TrackingWindow::eliminateSelection(const Question& question, Eliminate states) {
    if (!requireSelection(kNothingSelected) || !confirm(question)) return;
    followEdit(pass_.eliminate(selected(), states));
    settle();
}

void TrackingWindow::CmdPurge_Click() {
    if (!confirm(kQuestionPurge)) return;
    followEdit(pass_.eliminate([](int) { return true; }, Eliminate::DoneAndSeen));
    settle();
}

void TrackingWindow::CmdRepA_Click() {
    if (!requireSelection(kNothingSelectedToResume)) return;
    int first = 0;
    while (!List1.selected(first)) ++first;
    if (pass_.resumeAt(first)) enableAdvance(true);
    // With nothing left to do below, the last line is opened again, whatever its state.
    showAndOpen(Redraw::Anew);
    settle();
}

void TrackingWindow::CmdDeSelect_Click() { List1.clearSelection(); }

void TrackingWindow::followEdit(bool inProgress) {
    if (inProgress) {
        enableAdvance(true);
        showAndOpen(Redraw::Anew);
    } else {
        keepMarks();
        showEnd(Redraw::Anew);
    }
}
