// The configuration window's second tab: one configuration being edited.

#include "app/module1.h"
#include "common/numbers.h"
#include "common/text.h"
#include "platform/platform.h"
#include "searchfolders/configuration_window.h"
#include "searchfolders/folder_list.h"
#include "worklist/display_depth.h"
#include "worklist/display_line.h"

long ConfigurationWindow::nombreRep() const { return numericValue(Cpt_Rep.text()); }

void ConfigurationWindow::CmdCreer_Click() {
    MontrerPage(Page::Editing);
    Cpt_Rep.setText(L"0");
    module_.configs.NomConfEdit.clear();
    NomDeLaConf.setText(L"");
    clearFrom(module_.configs.RepEdit, 1);
    AfficherRepEdit();
}

void ConfigurationWindow::CmdModifier_Click() {
    EditerSelection();
    module_.configs.NomConfEdit.clear();
}

void ConfigurationWindow::CmdRenommer_Click() {
    EditerSelection();
    module_.configs.NomConfEdit = NomDeLaConf.text();
}

void ConfigurationWindow::EditerSelection() {
    Configurations& configs = module_.configs;
    ChercherSelection();
    MontrerPage(Page::Editing);
    const Configuration& selected = configs.ConfRep[configs.ConfSel];
    copyDirectories(selected, configs.RepEdit);
    Cpt_Rep.setText(decimal(directoryCount(selected)));
    AfficherRepEdit();
    NomDeLaConf.setText(selected[0]);
}

void ConfigurationWindow::AfficherRepEdit() {
    List2.setLines(static_cast<int>(nombreRep()), [&](int line) {
        return shownPath(module_.configs.RepEdit[line + 1], NNiv.text());
    });
}

void ConfigurationWindow::CmdPlus1_Click() {
    if (hideOneLevelMore(NNiv)) AfficherRepEdit();
}

void ConfigurationWindow::CmdMoins1_Click() {
    if (hideOneLevelLess(NNiv)) AfficherRepEdit();
}

void ConfigurationWindow::CmdRetir1_Click() { Retirer(Removal::Selected); }

void ConfigurationWindow::CmdRetir2_Click() { Retirer(Removal::WithFollowers); }

void ConfigurationWindow::Retirer(Removal removal) {
    const long left = removeDirectories(
        module_.configs.RepEdit, nombreRep(), [&](int line) { return List2.selected(line); },
        removal);
    Cpt_Rep.setText(decimal(left));
    AfficherRepEdit();
}

void ConfigurationWindow::CmdValider_Click() {
    SauverPosition();
    std::wstring name = NomDeLaConf.text();
    storeEdited(module_.configs, name);
    NomDeLaConf.setText(name);
    MontrerPage(Page::Configurations);
    AfficherConfs();
    if (equalIgnoringCase(name, L"En Cours")) AppliquerConf(module_, platform_.messageBoxes, 0);
}

void ConfigurationWindow::CmdAnnuler1_Click() {
    SauverPosition();
    RetenirPosition();
    MontrerPage(Page::Configurations);
}
