#pragma once

#include <functional>
#include <memory>
#include <string>

#include "pickers/directory_picker.h"
#include "pickers/drive_picker.h"
#include "platform/window.h"
#include "searchfolders/configuration_editing.h"

class OpenDirectories;
struct Module1;
struct Platform;

/// The configuration window: on one tab the configurations and their directories, on the other a
/// copy of one of them being edited. Editing changes the table, "Sauvegarder" the file.
class ConfigurationWindow : public EventSink {
 public:
    ConfigurationWindow(Module1& module, Platform& platform);

    void raise(int controlId, Event event) override;
    Window& window() { return *window_; }
    /// False once the user has closed the window: its controls are gone then.
    bool isOpen() const { return open_; }

    /// Reads the configuration file and the CAD application's search folders.
    void Form_Load();
    /// Closed by its frame: nothing is saved.
    void Form_Close();
    void TabStrip1_Click();

    // The configurations.
    void List1_Click();
    void CmdCreer_Click();
    void CmdModifier_Click();
    void CmdRenommer_Click();
    void CmdDetruire_Click();
    void CmdEnregister_Click();
    void CmdChoisir_Click();
    void CmdAnnuler_Click();

    // The directories of the one being edited.
    void Drive1_Change();
    void Dir1_DblClick();
    void CmdAjo1_Click();
    void CmdAjo2_Click();
    void CmdRetir1_Click();
    void CmdRetir2_Click();
    void CmdPlus1_Click();
    void CmdMoins1_Click();
    void CmdValider_Click();
    void CmdAnnuler1_Click();

 private:
    enum class Page { Configurations, Editing };

    void PreparerOnglets();
    void MontrerPage(Page page);
    void PreparerRepertoires();
    void AfficherConfs();
    void AfficherRepEdit();

    /// Sets ConfSel to the line selected in List1; keeps it when there is none.
    void ChercherSelection();
    void EditerSelection();
    void SauverPosition();
    void RetenirPosition();

    /// Lets the user open a directory in Dir1. When it can't be read Dir1 stays where it was and
    /// the user is told: what is being edited is worth more than a drive that isn't ready.
    void Ouvrir(const std::function<void()>& opening);
    void AjouterRep(const std::wstring& path);
    /// Adds what Dir1 lists and all below; ends where it began.
    void AjouterSousRep(OpenDirectories& way);
    void Retirer(Removal removal);
    long nombreRep() const;

    Module1& module_;
    Platform& platform_;
    std::unique_ptr<Window> window_;
    bool open_ = true;

    TabStrip& TabStrip1;
    ListBox &List1, &List2, &List3;
    Control &NomDeLaConf, &Cpt_Rep, &NNiv;
    DrivePicker Drive1;
    DirectoryPicker Dir1;
};
