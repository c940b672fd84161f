#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "input/program_window.h"
#include "pickers/pickers.h"
#include "selection/document_import.h"
#include "selection/document_search.h"
#include "selection/selection_list.h"
#include "worklist/list_display.h"

class CadSession;
class WindowPlaces;
struct Platform;
struct ProgramFiles;

/// Tells the user who stopped a search what has become of it.
inline constexpr wchar_t kIncompleteList[] = L"Recherche interrompue : la liste est incomplète.";

/// What the selection window leads to.
class SelectionExits {
 public:
    virtual ~SelectionExits() = default;
    virtual void closeSplash() = 0;
    virtual void launchPass() = 0;
    virtual void showConfigurations() = 0;
    virtual void showAbout() = 0;
};

/// The selection window, where a pass is prepared: it finds the documents below a directory, lets
/// the user choose among them, and launches the pass.
class SelectionWindow : public ProgramWindow<SelectionWindow> {
 public:
    SelectionWindow(Platform& platform, WindowPlaces& places, const CadSession& cad,
                    const ProgramFiles& files, SelectionExits& exits);

    void Form_Load();
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();

    // Where and what to search. Every change rebuilds the list, with nothing chosen.
    void unite_Change();
    void repert_DblClick();
    void repert_Change();
    /// Leaving the kinds rebuilds the list, too. If they are those searched last, documents found
    /// again stay chosen.
    void typef_Validate();
    void sousrep_Click();

    // Documents from elsewhere replace the list until the next search.
    void Importer_Click();
    void Form_Drop();

    // Choosing among the documents found.
    void List1_Click();
    void CmdCoche_Click();
    void Cmd_Inv_Click();
    void cmd_ajo_Click();
    void cmd_enl_Click();
    void CmdPlus_Click();
    void CmdMoins_Click();

    // Leaving.
    void CmdAP_Click();
    void CmdRepDef_Click();
    /// Switches the order of a pass: parts first, then assemblies, then drawings.
    void Ordre_Click();
    void cmd_tracer_Click();
    void cmd_sortie_Click();
    void cmd_annuler_Click();

 private:
    void openWorkingDirectory();
    void hideTrials();
    /// Whether the chosen directory is a drive root, and its sub-directories are wanted.
    bool searchesWholeDrive() const;
    /// Asks whether to search a whole drive. True for Yes.
    bool confirmWholeDrive();
    void leaveOutSubdirectories();
    enum class SearchEnd { Complete, Stopped, Superseded };

    /// False when the user ended the search early.
    bool rebuild(const SelectionList::Entries& chosen);
    SearchEnd search();
    /// No other directory is opened after all. A search that ended for one is incomplete.
    void stayHere();
    void tellIncomplete();
    void showCounts(int filesListed);

    using ImportStep = std::function<DocumentImport::End(DocumentImport&)>;
    void importDocuments(const ImportStep& gather);
    /// Does a step of an import, which the user can stop. When it did not complete, tells the user
    /// why and returns false.
    bool completes(DocumentImport& import, const ImportStep& step);
    /// False when there is none: the list stays as it was.
    bool listDocuments(std::vector<std::wstring> documents);

    void setByKind(bool on);
    /// False when the list that would be replaced is open in another program.
    bool writeList();
    std::vector<int> linesToWrite() const;
    std::wstring fullPath(int index) const;

    Platform& platform_;
    WindowPlaces& places_;
    const CadSession& cad_;
    const ProgramFiles& files_;
    SelectionExits& exits_;

    ComboBox& typef;
    CheckBox& sousrep;
    Control &nbfich, &cptfichier, &Label4, &n_filtre;
    DisplayDepth NNiveau;
    DrivePicker unite;
    DirectoryPicker repert;
    FoundDocuments found_;
    SelectionList List1;
    std::wstring searched_;                     ///< the directory searched last
    std::wstring searchedKinds_;                ///< the text of the kinds searched last
    std::optional<std::wstring> stoppedKinds_;  ///< their text when that search was stopped
    bool superseded_ = false;                   ///< that search ended for a newer one
    bool imported_ = false;                     ///< the listed documents come from elsewhere
    bool byKind_ = false;
};
