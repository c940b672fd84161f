#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "cad/cad_session.h"
#include "platform/window.h"
#include "tracking/work_list_view.h"
#include "worklist/line_commands.h"

struct Module1;
struct Platform;
struct Question;

/// The tracking window: the work list, the document in progress, and the commands that lead the
/// pass from one document to the next.
class TrackingWindow : public EventSink {
 public:
    TrackingWindow(Module1& module, Platform& platform);

    void raise(int controlId, Event event) override;
    Window& window() { return *window_; }

    /// Reads the list file and opens the first document to do. Ends the program when it is empty.
    void Form_Load();
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();
    void CmdSortie_Click();
    void CmdMemo_Click();

    // The sequencer.
    void CmdSuiv_Click();
    void CmdSuivQuitter_Click();
    void CmdSuivSauter_Click();
    void CmdPrecedent_Click();
    void Cmd1_Click();
    void Cmd2_Click();
    void Cmd3_Click();
    void Cmd4_Click();

    // The list and its display.
    void CmdFichierListe_Click();
    void CmdPlus1_Click();
    void CmdMoins1_Click();

    // Many lines at once; none of these writes the list file.
    void CmdChaF_Click();
    void CmdChaV_Click();
    void CmdChaRaz_Click();
    void CmdEliF_Click();
    void CmdEliFV_Click();
    void CmdEliV_Click();
    void CmdPurge_Click();
    /// Goes on at the first line to do from the first selected line on.
    void CmdRepA_Click();
    void CmdDeSelect_Click();

 private:
    void LireListe();
    void CocherOptions();
    std::wstring ChaineOptions() const;
    /// Puts lines left in progress back to do; gives the line to start at, in progress if to do.
    int ChoisirDepart();
    void Demarrer(int index);
    void DemarrerEnFin();

    /// Marks the current line ("1" saves its document), closes it and opens the next one to do.
    void Avancer(std::string_view mark);
    /// Opens a line's document, unless it is the open one already. Raises 9 from 8001 on.
    void OuvrirLigne(int index);
    void MontrerDocument();
    /// 1 disables the six advance buttons and shows "Aucun"; anything else enables them.
    void ActiverSuivants(std::int16_t flag);
    /// 1 disables the two step-back buttons and shows "aucun"; anything else enables them.
    void ActiverPrecedent(std::int16_t flag);
    /// Makes a line the current one: in progress, shown, selected, its document open.
    void PasserEnCours(int index);
    void AfficherListe(std::int16_t mode);

    /// 1 when at least one line is selected, else 0.
    int AuMoinsUneSelection() const;
    bool verifierSelection(const wchar_t* reproche);
    bool confirmer(const Question& question);
    LineSelected selectionnee() const;
    void ChangerSelection(const Question& question, std::string_view code);
    void EliminerSelection(const Question& question, Eliminate states);
    /// Finds the current line again after an edit of the list, and opens its document.
    void ReprendreCourant();
    /// Draws the list anew and makes a line the current one, its document open.
    void ReprendreA(int index);

    int ligneCourante() const;
    void fixerLigneCourante(long index);

    Module1& module_;
    Platform& platform_;
    std::unique_ptr<Window> window_;
    CadSession cad_;
    WorkListView vue_;
    std::int16_t typeDocument_ = 0;

    Control &TxtEtat, &nbfich1, &cptfichier1, &NNiveau1, &NumFichCour;
    ListBox& List1;
    CheckBox &CkMinimise, &CkSilent, &CkRecons, &CkRecons2;
};
