#include "selection/selection_window.h"

#include <algorithm>
#include <cstdint>

#include "cad/cad_session.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "selection/selection_tables.h"
#include "storage/program_files.h"
#include "storage/saving.h"
#include "storage/settings.h"
#include "storage/window_places.h"
#include "worklist/list_file.h"

namespace {

const std::wstring kTypes[] = {L"*.SLDDRW",
                               L"*.SLDASM",
                               L"*.SLDPRT",
                               L"*.SLDPRT ; *.SLDASM",
                               L"*.SLDPRT ; *.SLDDRW",
                               L"*.SLDASM ; *.SLDDRW",
                               L"*.SLDPRT ; *.SLDASM ; *.SLDDRW"};

/// The error about a name that no file can hold says which one.
void appendNamed(std::string& text, const std::wstring& path) {
    try {
        appendFreshLine(text, path);
    } catch (RuntimeError& error) {
        error.addLine(L"Document : " + path);
        throw;
    }
}

}  // namespace

SelectionWindow::SelectionWindow(Platform& platform, WindowPlaces& places, const CadSession& cad,
                                 const ProgramFiles& files, SelectionExits& exits)
    : ProgramWindow(platform.windows, kSelectionWindow, kSelectionBindings),
      platform_(platform),
      places_(places),
      cad_(cad),
      files_(files),
      exits_(exits),
      typef(window_->comboBox(IDC_FORM1_TYPEF)),
      sousrep(window_->checkBox(IDC_FORM1_SOUSREP)),
      nbfich(window_->control(IDC_FORM1_NBFICH)),
      cptfichier(window_->control(IDC_FORM1_CPTFICHIER)),
      Label4(window_->control(IDC_FORM1_LABEL4)),
      n_filtre(window_->control(IDC_FORM1_N_FILTRE)),
      NNiveau(window_->control(IDC_FORM1_NNIVEAU)),
      unite(window_->comboBox(IDC_FORM1_UNITE), platform.files),
      repert(window_->listBox(IDC_FORM1_REPERT), Label4, platform.search, *this),
      List1(window_->listBox(IDC_FORM1_LIST1), found_) {}

void SelectionWindow::Form_Load() {
    exits_.closeSplash();
    cptfichier.setText(L"0");
    nbfich.setText(L"0");
    NNiveau.reset();
    typef.setLines(kTypes);
    typef.setText(L"*.SLDDRW");
    hideTrials();
    if (valueOf(platform_.settings, setting::kByKind)) setByKind(true);
    openWorkingDirectory();
    places_.restore(PlacedWindow::Selection, *window_);
}

void SelectionWindow::openWorkingDirectory() {
    constexpr std::size_t kDriveLength = 3;
    const std::wstring& working = cad_.workingDirectory();
    const std::wstring directory = working.size() >= kDriveLength ? working : L"c:\\";
    unite.fill();
    unite.setDrive(directory);
    repert.openOr(directory, files_.directory);
    unite.setDrive(repert.path());
    repert_Change();
}

void SelectionWindow::hideTrials() {
    for (const int id :
         {IDC_FORM1_FILE1, IDC_FORM1_REP, IDC_FORM1_CDMTEST, IDC_FORM1_S, IDC_FORM1_T}) {
        window_->control(id).setVisible(false);
    }
}

void SelectionWindow::Form_Close() { throw ProgramEnd{}; }

void SelectionWindow::List1_Click() { nbfich.setText(decimal(List1.chosenCount())); }

void SelectionWindow::CmdCoche_Click() {
    List1.toggleHighlighted();
    List1_Click();
}

void SelectionWindow::Cmd_Inv_Click() {
    List1.toggleAll();
    List1_Click();
}

void SelectionWindow::cmd_ajo_Click() {
    List1.chooseMatching(n_filtre.text());
    List1_Click();
}

void SelectionWindow::cmd_enl_Click() {
    List1.dropMatching(n_filtre.text());
    List1_Click();
}

void SelectionWindow::CmdPlus_Click() {
    if (NNiveau.hideOneMore()) List1.redraw(NNiveau.levels());
}

void SelectionWindow::CmdMoins_Click() {
    if (NNiveau.hideOneLess()) List1.redraw(NNiveau.levels());
}

void SelectionWindow::CmdAP_Click() { exits_.showAbout(); }

void SelectionWindow::CmdRepDef_Click() { exits_.showConfigurations(); }

void SelectionWindow::Ordre_Click() {
    setByKind(!byKind_);
    setValue(platform_.settings, setting::kByKind, byKind_);
}

void SelectionWindow::setByKind(bool on) {
    byKind_ = on;
    window_->setMenuItemChecked(IDM_FORM1_ORDRE, on);
}

void SelectionWindow::cmd_tracer_Click() {
    places_.save(PlacedWindow::Selection, *window_);
    if (!writeList()) return;
    exits_.launchPass();
    window_->hide();
}

bool SelectionWindow::writeList() {
    std::string text;
    for (const int line : linesToWrite()) appendNamed(text, fullPath(line));
    return replaceList(platform_, files_, [&] {
        platform_.files.replace(files_.list, [&](const ByteSink& file) { file(text); });
    });
}

std::vector<int> SelectionWindow::linesToWrite() const {
    std::vector<int> lines;
    // The number of lines is the one that the window shows.
    const std::int32_t count = numericValue(cptfichier.text());
    for (std::int32_t i = 0; i < count; ++i) {
        if (List1.chosen(i)) lines.push_back(i);
    }
    const auto rank = [&](int line) { return kindRank(found_.entry(line)); };
    if (byKind_) std::ranges::stable_sort(lines, {}, rank);
    return lines;
}

std::wstring SelectionWindow::fullPath(int index) const {
    const std::wstring& entry = found_.entry(index);
    return found_.fullPaths() ? entry : searched_ + L"\\" + entry;
}

void SelectionWindow::cmd_sortie_Click() {
    places_.save(PlacedWindow::Selection, *window_);
    cmd_annuler_Click();
}

void SelectionWindow::cmd_annuler_Click() {
    window_->unload();
    throw ProgramEnd{};
}
