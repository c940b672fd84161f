// The configuration window's second tab: one configuration being edited.

#include <optional>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "input/searching.h"
#include "pickers/pulse.h"
#include "pickers/tree_walk.h"
#include "ports/files.h"
#include "ports/message_boxes.h"
#include "ports/platform.h"
#include "searchfolders/configuration_window.h"
#include "session/program_files.h"
#include "session/window_places.h"
#include "worklist/short_path.h"

void ConfigurationWindow::prepareDirectories() {
    Drive1.fill();
    Dir1.setPath(files_.directory);
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
    std::wstring problem;
    try {
        opening();
    } catch (const RuntimeError& error) {
        const bool tooMany = error.number == errors::subscriptOutOfRange().number;
        if (tooMany) throw;
        problem = error.text;
    }
    Drive1.setDrive(Dir1.path());
    if (problem.empty()) return;
    platform_.messageBoxes.show({.text = L"Ce répertoire ne peut pas être ouvert.\r\n" + problem,
                                 .title = L"Gestion des répertoires de recherche",
                                 .icon = MessageBoxContent::Icon::Stop});
}

void ConfigurationWindow::Drive1_Change() {
    const wchar_t drive = Drive1.drive();
    if (drive == 0) return;
    openDirectory([&] { Dir1.setPath(platform_.files.currentDirectory(drive)); });
}

void ConfigurationWindow::Dir1_DblClick() {
    openDirectory([&] { Dir1.openSelected(); });
}

void ConfigurationWindow::addDirectoryOf(const std::wstring& path) {
    const int count = editedCount();
    if (!addDirectory(configurations_.edited, count, path)) return;
    showEditedCount(count + 1);
    showEdited();
}

void ConfigurationWindow::CmdAjo1_Click() { addDirectoryOf(Dir1.path()); }

void ConfigurationWindow::CmdAjo2_Click() {
    const int before = editedCount();
    int count = before;
    Configuration edited = configurations_.edited;
    std::optional<WalkEnd> end;
    openDirectory([&] { end = addTree(edited, count); });
    if (end == WalkEnd::Complete) configurations_.edited = edited;
    showEditedCount(end == WalkEnd::Complete ? count : before);
    if (end == WalkEnd::Interrupted) platform_.messageBoxes.show(searchStoppedBox());
    if (editedCount() != before) showEdited();
}

WalkEnd ConfigurationWindow::addTree(Configuration& edited, int& count) {
    const Searching searching;
    Pulse pulse;
    return walkTree(platform_.search, Dir1.path(), true, noFile,
                    [&](const std::wstring& directory, const std::vector<std::wstring>&) {
                        if (addDirectory(edited, count, directory)) ++count;
                        if (!pulse.due()) return;
                        showEditedCount(count);
                        Cpt_Rep.repaint();
                    });
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
