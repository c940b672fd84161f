#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "input/program_window.h"
#include "tracking/pass_runner.h"
#include "worklist/list_display.h"

class AloneWindow;
class CadSession;
class WindowPlaces;
struct Platform;
struct ProgramFiles;
struct Question;

/// The tracking window: the work list, the document in progress, and the commands that take the
/// pass from one document to the next. It shows what its runner does.
class TrackingWindow : public ProgramWindow<TrackingWindow>, private PassView {
 public:
    using Origin = PassRunner::Origin;

    TrackingWindow(Platform& platform, WindowPlaces& places, CadSession& cad,
                   const ProgramFiles& files);

    ~TrackingWindow() override;

    /// Reads the list file and opens the first document to do. Ends the program when it is empty.
    void Form_Load(Origin origin);
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();
    void CmdSortie_Click();

    // From one document to another.
    void CmdSuiv_Click();
    void CmdSuivQuitter_Click();
    void CmdSuivSauter_Click();
    void CmdPrecedent_Click();

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

    // The system menu: switches, and the report.
    void ToujoursVisible_Click();
    void Touches_Click();
    void PremierPlan_Click();
    void Rapport_Click();
    void PasserRefus_Click();
    void GarderNonSauve_Click();
    void LaisserOuverts_Click();
    void References_Click();

    /// Undoes the last mark of this run.
    void Revenir_Click();
    /// Asks, and lets the pass go on alone until something stops it.
    void Seul_Click();

    const Pass& pass() const { return runner_.pass(); }
    /// Whether there are marks, all of which will be offered at the next start.
    bool keepsMarks() const { return runner_.keepsMarks(); }

 private:
    void load(Origin origin);
    void takeOptions();
    void tickOptions();
    std::wstring tickedOptions() const;
    void explain(RuntimeError& error) const override;

    /// Makes the line that NumFichCour names the current one. Raises 13 when that is no number, 6
    /// when it is outside 16 bits.
    void takePointer();
    void advance(LineState mark);

    LoadingOptions loadingOptions() const override;
    void showCurrent(Redraw redraw) override;
    void showOpening() override;
    void showDocument() override;
    void showEnd(Redraw redraw) override;
    void showTop() override;
    void allowAdvance() override { enableAdvance(true); }
    void allowStepBack() override { enableStepBack(true); }
    void showChoices() override;
    void showAlert(Alert alert) override { window_->showAlert(alert); }
    void showNumbers();
    void drawList(Redraw redraw);
    void enableAdvance(bool enabled);
    void enableStepBack(bool enabled);

    bool anySelected() const;
    LineSelected selected() const;
    bool requireSelection(const wchar_t* reproach);
    bool confirm(const Question& question);
    void changeSelection(const Question& question, LineState state);
    void eliminateSelection(const Question& question, Eliminate states);

    AloneOutcome goAlone(int documents);
    /// Shows which document is being worked on, if the pass is going on alone.
    void showAlone();
    /// Serves the windows between two documents. False when the user stops the pass.
    bool goesOn();

    void setAlwaysVisible(bool on);
    void setAllReleases(bool on);
    /// Switches what the pass does when the session refuses something.
    void setPassOption(int itemId, bool on);
    void togglePassOption(int itemId);
    /// They stay off when another program has taken one.
    void setHotKeys(bool on);
    /// Raises 70, 75 or 76.
    void writeReport(const std::wstring& path);

    Platform& platform_;
    WindowPlaces& places_;
    CadSession& cad_;
    const ProgramFiles& files_;
    PassRunner runner_;
    std::unique_ptr<AloneWindow> alone_;  ///< null unless the pass is going on alone

    Control &TxtEtat, &nbfich1, &cptfichier1, &NumFichCour;
    DisplayDepth NNiveau1;
    ListBox& List1;
    CheckBox &CkMinimise, &CkSilent, &CkRecons, &CkRecons2;
    WorkListView lines_;
    bool alwaysVisible_ = false;
    bool allReleases_ = false;
    bool hotKeys_ = false;
};
