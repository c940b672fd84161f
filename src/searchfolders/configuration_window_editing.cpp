// The configuration window's second tab: one configuration being edited.

#include <algorithm>
#include <functional>
#include <vector>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "pickers/pickers.h"
#include "pickers/tree_walk.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "ports/search.h"
#include "searchfolders/configuration_window.h"
#include "storage/program_files.h"
#include "storage/window_places.h"
#include "worklist/list_display.h"

namespace {

MessageBoxContent leftOutBox(const std::vector<std::wstring>& directories) {
    constexpr std::size_t kNamed = 5;
    std::wstring text =
        L"Un répertoire dont le chemin contient « ; » ne peut pas être un répertoire de recherche "
        L"de SolidWorks. Laissé de côté :";
    for (std::size_t i = 0; i < std::min(kNamed, directories.size()); ++i) {
        text += L"\r\n" + directories[i];
    }
    if (directories.size() > kNamed) {
        text += L"\r\net " + decimal(static_cast<int>(directories.size() - kNamed)) + L" de plus";
    }
    return {.text = text,
            .title = L"Gestion des répertoires de recherche",
            .icon = MessageBoxContent::Icon::Warning};
}

}  // namespace

void ConfigurationWindow::prepareDirectories() {
    Drive1.fill();
    Dir1.openOr(platform_.programDirectory, platform_.programDirectory);
    Drive1.setDrive(Dir1.path());
}

int ConfigurationWindow::editedCount() const { return numericValue(Cpt_Rep.text()); }

void ConfigurationWindow::showEditedCount(int count) { Cpt_Rep.setText(decimal(count)); }

void ConfigurationWindow::CmdCreer_Click() {
    showPage(Page::Editing);
    showEditedCount(0);
    configurations_.renamed.clear();
    NomDeLaConf.setText(L"");
    clearFrom(configurations_.edited, 1);
    showEdited();
}

void ConfigurationWindow::CmdModifier_Click() {
    editSelection();
    configurations_.renamed.clear();
}

void ConfigurationWindow::CmdRenommer_Click() {
    editSelection();
    configurations_.renamed = NomDeLaConf.text();
}

void ConfigurationWindow::editSelection() {
    findSelection();
    showPage(Page::Editing);
    const Configuration& selected = configurations_.rows[configurations_.selected];
    copyDirectories(selected, configurations_.edited);
    showEditedCount(directoryCount(selected));
    showEdited();
    NomDeLaConf.setText(selected[0]);
}

void ConfigurationWindow::showEdited() {
    List2.setLines(editedCount(), [&](int line) {
        std::wstring shown;
        addShownPath(shown, configurations_.edited[line + 1], NNiv.levels());
        return shown;
    });
}

void ConfigurationWindow::CmdPlus1_Click() {
    if (NNiv.hideOneMore()) showEdited();
}

void ConfigurationWindow::CmdMoins1_Click() {
    if (NNiv.hideOneLess()) showEdited();
}

void ConfigurationWindow::openDirectory(const std::function<void()>& opening) {
    const wchar_t drive = Drive1.drive();
    std::wstring problem;
    try {
        opening();
    } catch (const RuntimeError& error) {
        const bool tooMany = error.number == errors::subscriptOutOfRange().number;
        if (tooMany) throw;
        problem = error.text;
    }
    // Unless the user has chosen another drive meanwhile.
    if (Drive1.drive() == drive) Drive1.setDrive(Dir1.path());
    if (problem.empty()) return;
    platform_.messageBoxes.show({.text = L"Ce répertoire ne peut pas être ouvert.\r\n" + problem,
                                 .title = L"Gestion des répertoires de recherche",
                                 .icon = MessageBoxContent::Icon::Stop});
}

void ConfigurationWindow::Drive1_Change() {
    const wchar_t drive = Drive1.drive();
    if (drive == 0) return;
    openDirectory([&] { Dir1.open(platform_.files.currentDirectory(drive)); });
}

void ConfigurationWindow::Dir1_DblClick() {
    openDirectory([&] { Dir1.openSelected(); });
}

void ConfigurationWindow::CmdAjo1_Click() {
    const std::wstring& path = Dir1.path();
    const int count = editedCount();
    if (!canBeSearchFolder(path)) return tellLeftOut({path});
    if (!addDirectory(configurations_.edited, count, path)) return;
    showEditedCount(count + 1);
    showEdited();
}

void ConfigurationWindow::CmdAjo2_Click() {
    const int before = editedCount();
    TreeAddition tree{configurations_.edited, before};
    openDirectory([&] { addTree(tree); });
    if (tree.complete) configurations_.edited = tree.edited;
    showEditedCount(tree.complete ? tree.count : before);
    if (editedCount() != before) showEdited();
    if (tree.stopped) {
        platform_.messageBoxes.warn(L"Recherche interrompue : rien n'a été ajouté.");
    }
    if (tree.complete && !tree.leftOut.empty()) tellLeftOut(tree.leftOut);
}

void ConfigurationWindow::addTree(TreeAddition& tree) {
    const Searching searching(platform_.search.watch, *this, SearchKind::Documents);
    const SearchSign sign(Label5);
    Pulse pulse;
    const WalkEnd end =
        walkTree(platform_.search, Dir1.path(), true, noFile,
                 [&](const std::wstring& directory, const std::vector<std::wstring>&) {
                     tree.add(directory);
                     if (!pulse.due()) return;
                     showEditedCount(tree.count);
                     Cpt_Rep.repaint();
                 });
    tree.complete = end == WalkEnd::Complete;
    tree.stopped = searching.stopped();
}

void ConfigurationWindow::tellLeftOut(const std::vector<std::wstring>& directories) {
    platform_.messageBoxes.show(leftOutBox(directories));
}

void ConfigurationWindow::CmdRetir1_Click() { remove(Removal::Selected); }

void ConfigurationWindow::CmdRetir2_Click() { remove(Removal::WithFollowers); }

void ConfigurationWindow::remove(Removal removal) {
    showEditedCount(removeDirectories(
        configurations_.edited, editedCount(), [&](int line) { return List2.selected(line); },
        removal));
    showEdited();
}

void ConfigurationWindow::CmdValider_Click() {
    places_.save(PlacedWindow::SearchFolders, *window_);
    std::wstring name = NomDeLaConf.text();
    storeEdited(configurations_, name);
    NomDeLaConf.setText(name);
    showPage(Page::Configurations);
    showConfigurations();
    if (equalIgnoringCase(name, L"En Cours")) apply(configurations_.rows[0]);
}

void ConfigurationWindow::CmdAnnuler1_Click() {
    places_.save(PlacedWindow::SearchFolders, *window_);
    showPage(Page::Configurations);
}
