// The selection window's search: from the drive, the directory, the kinds and the sub-directories
// box to the list.

#include <utility>

#include "common/numbers.h"
#include "pickers/paths.h"
#include "pickers/pickers.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "ports/search.h"
#include "selection/document_search.h"
#include "selection/selection_window.h"

void SelectionWindow::repert_DblClick() {
    const Opening opening = repert.openSelected();
    if (opening == Opening::GivenUp) return stayHere();
    if (opening == Opening::Another || superseded_) repert_Change();
}

void SelectionWindow::stayHere() {
    if (superseded_ && platform_.search.watch.stopped()) tellIncomplete();
}

void SelectionWindow::tellIncomplete() {
    superseded_ = false;
    stoppedKinds_ = typef.text();
    platform_.messageBoxes.warn(kIncompleteList);
}

void SelectionWindow::unite_Change() {
    const wchar_t drive = unite.drive();
    if (drive == 0) return;
    const Opening opening = repert.open(platform_.files.currentDirectory(drive));
    if (opening == Opening::GivenUp) {
        // The drive before is shown again, unless the user has chosen yet another one.
        if (unite.drive() == drive) unite.setDrive(repert.path());
        return stayHere();
    }
    const bool complete = rebuild({});
    // The directory and the drive each ask for a rebuild. The second would find the same again, so
    // it is skipped unless it has a question to repeat.
    if (complete && opening == Opening::Another && searchesWholeDrive()) repert_Change();
}

bool SelectionWindow::searchesWholeDrive() const {
    return isDriveRoot(repert.path()) && sousrep.checked();
}

bool SelectionWindow::confirmWholeDrive() {
    const auto answer = platform_.messageBoxes.show(
        {.text = L"    La recherche de tous les fichiers à partir de la racine  \n\r"
                 L"                risque d'être assez longue .\n\r"
                 L" \n\r"
                 L"             Voulez vous quand même continuer ?\n\r",
         .title = L"Tarnwick Mervale",
         .buttons = MessageBoxContent::Buttons::YesNo});
    return answer == MessageBoxes::Answer::Yes;
}

void SelectionWindow::leaveOutSubdirectories() {
    sousrep.setChecked(false);
    sousrep_Click();
}

void SelectionWindow::sousrep_Click() {
    cptfichier.setText(L"0");
    found_.restart(sousrep.checked());
    if (searchesWholeDrive() && !confirmWholeDrive()) {
        leaveOutSubdirectories();
    } else {
        repert_Change();
    }
}

void SelectionWindow::repert_Change() { rebuild({}); }

void SelectionWindow::typef_Validate() {
    // Leaving the field doesn't repeat a search that the user has stopped.
    if (typef.text() == stoppedKinds_) return;
    const bool asSearched = typef.text() == searchedKinds_;
    // A user who only passes through the field doesn't want to lose an imported list.
    if (imported_ && asSearched) return;
    rebuild(asSearched ? List1.chosenEntries() : SelectionList::Entries());
}

bool SelectionWindow::rebuild(const SelectionList::Entries& chosen) {
    if (searchesWholeDrive() && !confirmWholeDrive()) {
        leaveOutSubdirectories();
        return true;
    }
    searched_ = repert.path();
    searchedKinds_ = typef.text();
    const SearchEnd end = search();
    superseded_ = end == SearchEnd::Superseded;
    stoppedKinds_.reset();
    cptfichier.setText(decimal(found_.count()));
    List1.fill(NNiveau.levels(), [&](int line) { return chosen.contains(found_.entry(line)); });
    List1_Click();
    if (end == SearchEnd::Stopped) tellIncomplete();
    return end == SearchEnd::Complete;
}

SelectionWindow::SearchEnd SelectionWindow::search() {
    const Searching searching(platform_.search.watch, *this, SearchKind::Documents);
    const SearchSign sign(Label4);
    if (std::exchange(imported_, false)) found_.restart(sousrep.checked());
    found_.beginPass(false);
    showCounts(0);
    Pulse pulse;
    DocumentSearch search(platform_.search, found_, DocumentKinds(searchedKinds_),
                          [&](int filesListed) {
                              if (pulse.due()) showCounts(filesListed);
                          });
    const WalkEnd end = search.run(searched_, sousrep.checked());
    if (end == WalkEnd::Complete) return SearchEnd::Complete;
    return searching.stopped() ? SearchEnd::Stopped : SearchEnd::Superseded;
}

void SelectionWindow::showCounts(int filesListed) {
    nbfich.setText(decimal(filesListed));
    cptfichier.setText(decimal(found_.count()));
    nbfich.repaint();
    cptfichier.repaint();
}
