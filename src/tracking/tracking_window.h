#pragma once

#include <array>
#include <string>
#include <string_view>

#include "input/program_window.h"
#include "tracking/work_list_view.h"
#include "worklist/list_display.h"
#include "worklist/mark_keeper.h"
#include "worklist/pass.h"

class CadSession;
class WindowPlaces;
struct LoadingOptions;
struct Platform;
struct ProgramFiles;
struct Question;

/// The tracking window: the work list, the document in progress, and the commands that lead the
/// pass from one document to the next. It mirrors a pass and makes the calls between its steps.
class TrackingWindow : public ProgramWindow<TrackingWindow> {
 public:
    /// Where the list comes from: resumed from an earlier run, whose marks may have been kept;
    /// launched now; or launched after an old list was declined: then all lines but the first show
    /// as to do at first.
    enum class Origin { Resumed, Launched, LaunchedAfterDeclining };

    TrackingWindow(Platform& platform, WindowPlaces& places, CadSession& cad,
                   const ProgramFiles& files);

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

    // The system menu: three marks, and the report.
    void ToujoursVisible_Click();
    void Touches_Click();
    void PremierPlan_Click();
    void Rapport_Click();

    const Pass& pass() const { return pass_; }
    /// Whether all marks of the pass will be offered at the next start.
    bool keepsMarks() const { return marks_.keeps(); }

 private:
    enum class Redraw { InPlace, Anew, AllToDo };

    void load(Origin origin);
    void readList();
    /// Offers the marks that an earlier run kept and, when it stopped while a document was being
    /// opened, to go past that one. True when there is a document to open.
    bool resume();
    bool offerMarks(KeptState& kept);
    bool startBeside(std::int32_t fileLine);
    void takeOptions();
    void tickOptions();
    std::wstring tickedOptions() const;
    LoadingOptions loadingOptions() const;

    /// The pass takes over the line that NumFichCour names. Raises 13 when that is no number,
    /// 6 outside 16 bits.
    void takePointer();
    void advance(std::string_view mark);
    /// The mark is kept even when the list can't go on.
    bool advancePass(std::string_view mark, Saved saved);
    /// The current line is shown, selected, and its document opened unless it is open already.
    void showAndOpen(Redraw redraw);
    void openCurrent();
    /// Closes the document that counts as open, if any. None is being opened yet: what goes wrong
    /// now is not the next one's doing.
    void closeOther();
    /// What the command did is on disk; a failure to put it there is told once.
    void keepMarks(std::optional<std::int32_t> opening = std::nullopt);
    /// The command has made its last call.
    void settle();
    void explain(RuntimeError& error) const override;
    void showEnd(Redraw redraw);
    void showNumbers();
    void drawList(Redraw redraw);
    void enableAdvance(bool enabled);
    void enableStepBack(bool enabled);

    bool anySelected() const;
    LineSelected selected() const;
    bool requireSelection(const wchar_t* reproach);
    bool confirm(const Question& question);
    void changeSelection(const Question& question, std::string_view code);
    void eliminateSelection(const Question& question, Eliminate states);
    /// After an edit of the list: opens the document of the current line, if there is one.
    void followEdit(bool inProgress);

    void setAlwaysVisible(bool on);
    void setAllReleases(bool on);
    /// They stay off when one is taken.
    void setHotKeys(bool on);
    /// Raises 70, 75 or 76.
    void writeReport(const std::wstring& path);

    Platform& platform_;
    WindowPlaces& places_;
    CadSession& cad_;
    const ProgramFiles& files_;
    Pass pass_;
    MarkKeeper marks_;

    Control &TxtEtat, &nbfich1, &cptfichier1, &NumFichCour;
    DisplayDepth NNiveau1;
    ListBox& List1;
    CheckBox &CkMinimise, &CkSilent, &CkRecons, &CkRecons2;
    WorkListView lines_;
    bool alwaysVisible_ = false;
    bool allReleases_ = false;
    bool hotKeys_ = false;
};
