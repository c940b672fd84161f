// The selection window's search: from drive, directory, kinds and sub-directories box to the list.

#include "common/numbers.h"
#include "input/searching.h"
#include "pickers/directory_listing.h"
#include "pickers/pulse.h"
#include "ports/files.h"
#include "ports/message_boxes.h"
#include "ports/platform.h"
#include "selection/document_search.h"
#include "selection/selection_window.h"

void SelectionWindow::repert_DblClick() {
    if (repert.openSelected()) repert_Change();
}

void SelectionWindow::unite_Change() {
    if (unite.drive() == 0) return;
    const bool elsewhere = repert.setPath(platform_.files.currentDirectory(unite.drive()));
    repert_Change();
    // Another directory and the drive each ask for a rebuild. The second finds the same again, so
    // it is spared unless it has a question to repeat.
    if (elsewhere && searchesWholeDrive()) repert_Change();
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
    const bool asSearched = typef.text() == searchedKinds_;
    rebuild(asSearched ? List1.chosenEntries() : SelectionList::Entries());
}

void SelectionWindow::rebuild(const SelectionList::Entries& chosen) {
    if (searchesWholeDrive() && !confirmWholeDrive()) leaveOutSubdirectories();
    searched_ = repert.path();
    searchedKinds_ = typef.text();
    const bool stopped = search();
    cptfichier.setText(decimal(found_.count()));
    List1.fill(NNiveau.levels(), chosen);
    List1_Click();
    if (stopped) platform_.messageBoxes.show(searchStoppedBox());
}

bool SelectionWindow::search() {
    const Searching searching;
    Pulse pulse;
    const auto showProgress = [&](int filesListed) {
        if (!pulse.due()) return;
        nbfich.setText(decimal(filesListed));
        cptfichier.setText(decimal(found_.count()));
        nbfich.repaint();
        cptfichier.repaint();
    };
    DocumentSearch search(platform_.search, found_, DocumentKinds(searchedKinds_), showProgress);
    return search.run(searched_, sousrep.checked()) == WalkEnd::Interrupted && searching.stopped();
}
