// The tracking window's list commands: many lines at once, and where the pass goes on.

#include "app/module1.h"
#include "common/numbers.h"
#include "common/utf8.h"
#include "platform/platform.h"
#include "tracking/list_command_texts.h"
#include "tracking/tracking_window.h"

int TrackingWindow::AuMoinsUneSelection() const {
    for (int i = 0; i <= module_.liste.DerFich; ++i) {
        if (List1.selected(i)) return 1;
    }
    return 0;
}

bool TrackingWindow::verifierSelection(const wchar_t* reproche) {
    if (AuMoinsUneSelection() != 0) return true;
    platform_.messageBoxes.show(missingSelectionBox(reproche));
    return false;
}

bool TrackingWindow::confirmer(const Question& question) {
    return platform_.messageBoxes.show(boxOf(question)) == MessageBoxes::Answer::Yes;
}

LineSelected TrackingWindow::selectionnee() const {
    return [this](int line) { return List1.selected(line); };
}

void TrackingWindow::CmdChaF_Click() { ChangerSelection(kQuestionChaF, state::kDone); }
void TrackingWindow::CmdChaV_Click() { ChangerSelection(kQuestionChaV, state::kSeen); }

void TrackingWindow::ChangerSelection(const Question& question, std::string_view code) {
    if (!verifierSelection(kNothingSelected) || !confirmer(question)) return;
    changeSelected(module_.liste, selectionnee(), code);
    ReprendreCourant();
}

void TrackingWindow::CmdChaRaz_Click() {
    if (!verifierSelection(kNothingSelectedToResume) || !confirmer(kQuestionChaRaz)) return;
    ActiverSuivants(0);
    ReprendreA(resetSelected(module_.liste, selectionnee()));
    MontrerDocument();
}

void TrackingWindow::CmdEliF_Click() { EliminerSelection(kQuestionEliF, Eliminate::DoneAndSeen); }
void TrackingWindow::CmdEliFV_Click() { EliminerSelection(kQuestionEliFV, Eliminate::DoneAndSeen); }
void TrackingWindow::CmdEliV_Click() { EliminerSelection(kQuestionEliV, Eliminate::Seen); }

void TrackingWindow::EliminerSelection(const Question& question, Eliminate states) {
    if (!verifierSelection(kNothingSelected) || !confirmer(question)) return;
    eliminateLines(module_.liste, selectionnee(), states);
    ReprendreCourant();
}

void TrackingWindow::CmdPurge_Click() {
    if (!confirmer(kQuestionPurge)) return;
    eliminateLines(
        module_.liste, [](int) { return true; }, Eliminate::DoneAndSeen);
    ReprendreCourant();
}

void TrackingWindow::CmdRepA_Click() {
    if (!verifierSelection(kNothingSelectedToResume)) return;
    int first = 0;
    while (!List1.selected(first)) ++first;
    const auto found = resumeFrom(module_.liste, first);
    if (found) ActiverSuivants(0);
    // With nothing left to do below, the last line is opened again, whatever its state.
    ReprendreA(found.value_or(module_.liste.DerFich));
}

void TrackingWindow::CmdDeSelect_Click() { List1.clearSelection(); }

void TrackingWindow::ReprendreCourant() {
    if (const auto current = reestablishCurrent(module_.liste)) {
        ActiverSuivants(0);
        ReprendreA(*current);
        return;
    }
    const std::wstring shown = nbfich1.text();
    AfficherListe(2);
    // The number stays; the count shows the lines, so that saving the list writes them all.
    nbfich1.setText(shown);
    cptfichier1.setText(decimal(module_.liste.lineCount()));
    ActiverSuivants(1);
}

void TrackingWindow::ReprendreA(int index) {
    fixerLigneCourante(index);
    AfficherListe(2);
    nbfich1.setText(decimal(index + 1));
    cptfichier1.setText(decimal(module_.liste.lineCount()));
    List1.select(index, true);
    OuvrirLigne(index);
    TxtEtat.setText(wideText(module_.liste.EtatFich[index].path));
}
