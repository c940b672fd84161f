// The configuration window's pickers, and what they add to the configuration being edited.

#include "app/module1.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "pickers/open_directories.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "searchfolders/configuration_window.h"

void ConfigurationWindow::PreparerRepertoires() {
    Drive1.fill();
    Dir1.setPath(module_.RepAppli);
    Drive1.setDrive(Dir1.path());
}

void ConfigurationWindow::Ouvrir(const std::function<void()>& opening) {
    std::wstring problem;
    try {
        opening();
    } catch (const RuntimeError& error) {
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
    Ouvrir([&] { Dir1.setPath(platform_.files.currentDirectory(drive)); });
}

void ConfigurationWindow::Dir1_DblClick() {
    Ouvrir([&] { Dir1.openSelected(); });
}

void ConfigurationWindow::AjouterRep(const std::wstring& path) {
    const long count = nombreRep();
    if (!addDirectory(module_.configs.RepEdit, count, path)) return;
    Cpt_Rep.setText(decimal(count + 1));
    AfficherRepEdit();
}

void ConfigurationWindow::CmdAjo1_Click() { AjouterRep(Dir1.path()); }

void ConfigurationWindow::CmdAjo2_Click() {
    AjouterRep(Dir1.path());
    OpenDirectories way(platform_.files);
    AjouterSousRep(way);
}

void ConfigurationWindow::AjouterSousRep(OpenDirectories& way) {
    way.enter(Dir1.path());
    for (int i = 0; i < Dir1.subdirectoryCount(); ++i) {
        if (Dir1.subdirectoryIsLink(i) && way.leadsBack(Dir1.subdirectory(i))) continue;
        Dir1.setPath(Dir1.subdirectory(i));
        AjouterRep(Dir1.path());
        AjouterSousRep(way);
        Dir1.setPath(Dir1.parent());
    }
    way.leave();
}
