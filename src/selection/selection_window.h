#pragma once

#include <memory>
#include <string>

#include "pickers/directory_picker.h"
#include "pickers/drive_picker.h"
#include "platform/window.h"
#include "selection/found_documents.h"
#include "selection/selection_list.h"

class Navigation;
struct Module1;
struct Platform;

/// The selection window: a pass is prepared here. It finds the documents under a directory, lets
/// the user choose among them, and launches the pass.
class SelectionWindow : public EventSink {
 public:
    SelectionWindow(Module1& module, Platform& platform, Navigation& navigation);

    void raise(int controlId, Event event) override;
    Window& window() { return *window_; }

    void Form_Load();
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();

    // Where and what to search: every change rebuilds the list.
    void unite_Change();
    void repert_Click();
    void repert_DblClick();
    void repert_Change();
    void typef_Change();
    void typef_Click();
    void typef_Validate();
    void sousrep_Click();

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
    void cmd_tracer_Click();
    void cmd_sortie_Click();
    void cmd_annuler_Click();

 private:
    void ChoisirDepart();
    void MasquerEssais();
    /// The chosen directory is a drive root and its sub-directories are wanted.
    bool rechercheDepuisRacine() const;
    /// Asks whether a whole drive is to be searched. True for Yes.
    bool ConfirmerRacine();
    void DecocherSousRep();
    void Rechercher();
    void LancerTraitement();
    std::wstring cheminComplet(long index) const;

    Module1& module_;
    Platform& platform_;
    Navigation& navigation_;
    std::unique_ptr<Window> window_;

    ComboBox& typef;
    CheckBox& sousrep;
    Control &nbfich, &cptfichier, &NNiveau, &n_filtre;
    DrivePicker unite;
    DirectoryPicker repert;
    FoundDocuments trouves_;
    SelectionList liste_;
    std::wstring repFichiers_;  ///< the directory that the file enumerator stands at
};
