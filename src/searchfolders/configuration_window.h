#pragma once

#include <functional>
#include <string>
#include <vector>

#include "input/program_window.h"
#include "pickers/pickers.h"
#include "searchfolders/configurations.h"
#include "storage/saving.h"
#include "worklist/list_display.h"

class CadSession;
class FileSystemObject;
class WindowPlaces;
struct Platform;
struct ProgramFiles;

/// The configuration window. One tab shows the configurations with their directories, the other a
/// copy of one that is being edited. Editing changes the table, "Sauvegarder" the file.
class ConfigurationWindow : public ProgramWindow<ConfigurationWindow> {
 public:
    /// `configurations` outlive the window, so that what was being edited is still there next time.
    ConfigurationWindow(Platform& platform, WindowPlaces& places, CadSession& cad,
                        FileSystemObject& fileSystem, const ProgramFiles& files,
                        Configurations& configurations);

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

    void prepareTabs();
    void showPage(Page page);
    void prepareDirectories();
    void showConfigurations();
    void showEdited();

    /// Makes the configuration selected in List1 the selected one; changes nothing when none is.
    void findSelection();
    void editSelection();
    /// Reads the CAD application's search folders into row 0, under the name "En Cours". Raises
    /// what the application answers, and 9 past 200 folders.
    void readCurrentFolders();
    /// Makes a configuration the CAD application's search folders, and tells the user whether the
    /// application took them. Raises what the application answers, and 9 as joinFolders.
    void apply(const Configuration& configuration);

    /// Opens a directory in Dir1. If it can't be read, the user is told and Dir1 stays where it
    /// was: a drive that isn't ready must not cost what is being edited.
    void openDirectory(const std::function<void()>& opening);
    /// Adds Dir1's directory and all below it to a copy of what is being edited. The user can stop
    /// it.
    void addTree(TreeAddition& tree);
    void tellLeftOut(const std::vector<std::wstring>& directories);
    void remove(Removal removal);
    /// How many directories are being edited: what Cpt_Rep shows.
    int editedCount() const;
    void showEditedCount(int count);

    Platform& platform_;
    WindowPlaces& places_;
    CadSession& cad_;
    FileSystemObject& fileSystem_;
    SharedFile file_;
    Configurations& configurations_;
    bool open_ = true;

    TabStrip& TabStrip1;
    ListBox &List1, &List2, &List3;
    Control &NomDeLaConf, &Cpt_Rep, &Label5;
    DisplayDepth NNiv;
    DrivePicker Drive1;
    DirectoryPicker Dir1;
};
