#include "tracking/tracking_window.h"

#include "cad/cad_session.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/machine.h"
#include "storage/program_files.h"
#include "storage/settings.h"
#include "storage/window_places.h"
#include "tracking/alone_window.h"
#include "tracking/tracking_tables.h"
#include "tracking/tracking_texts.h"
#include "worklist/pass.h"

TrackingWindow::TrackingWindow(Platform& platform, WindowPlaces& places, CadSession& cad,
                               const ProgramFiles& files)
    : ProgramWindow(platform.windows, kTrackingWindow, kTrackingBindings),
      platform_(platform),
      places_(places),
      cad_(cad),
      files_(files),
      runner_(platform, cad, files, *this),
      TxtEtat(window_->control(IDC_FORM3_TXTETAT)),
      nbfich1(window_->control(IDC_FORM3_NBFICH1)),
      cptfichier1(window_->control(IDC_FORM3_CPTFICHIER1)),
      NumFichCour(window_->control(IDC_FORM3_NUMFICHCOUR)),
      NNiveau1(window_->control(IDC_FORM3_NNIVEAU1)),
      List1(window_->listBox(IDC_FORM3_LIST1)),
      CkMinimise(window_->checkBox(IDC_FORM3_CKMINIMISE)),
      CkSilent(window_->checkBox(IDC_FORM3_CKSILENT)),
      CkRecons(window_->checkBox(IDC_FORM3_CKRECONS)),
      CkRecons2(window_->checkBox(IDC_FORM3_CKRECONS2)),
      lines_(List1) {}

TrackingWindow::~TrackingWindow() = default;

void TrackingWindow::Form_Load(Origin origin) {
    explained([&] { load(origin); });
}

void TrackingWindow::load(Origin origin) {
    places_.restore(PlacedWindow::Tracking, *window_);
    takeOptions();
    tickOptions();
    CkMinimise.setVisible(false);
    NNiveau1.reset();
    runner_.read();
    window_->control(IDC_FORM3_CMDMEMO).setVisible(false);
    NumFichCour.setVisible(false);
    runner_.start(origin);
}

void TrackingWindow::explain(RuntimeError& error) const {
    if (keepsMarks()) error.addLine(kMarksAreKept);
}

void TrackingWindow::tickOptions() {
    const std::wstring options = valueOf(platform_.settings, setting::kLoadingOptions);
    const std::array boxes{&CkMinimise, &CkSilent, &CkRecons, &CkRecons2};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->setChecked(i < options.size() && options[i] == L'1');
    }
}

std::wstring TrackingWindow::tickedOptions() const {
    std::wstring options;
    for (const CheckBox* box : {&CkMinimise, &CkSilent, &CkRecons, &CkRecons2}) {
        options += box->checked() ? L'1' : L'0';
    }
    return options;
}

LoadingOptions TrackingWindow::loadingOptions() const {
    using Rebuild = LoadingOptions::Rebuild;
    const Rebuild rebuild = CkRecons2.checked()  ? Rebuild::AllLevels
                            : CkRecons.checked() ? Rebuild::TopLevel
                                                 : Rebuild::None;
    return {.silent = CkSilent.checked(), .rebuild = rebuild};
}

void TrackingWindow::CmdSortie_Click() {
    places_.save(PlacedWindow::Tracking, *window_);
    setValue(platform_.settings, setting::kLoadingOptionsWritten, tickedOptions());
    runner_.leave();
    throw ProgramEnd{};
}

void TrackingWindow::Form_Close() {
    runner_.end();
    throw ProgramEnd{};
}

void TrackingWindow::CmdFichierListe_Click() {
    // The number of lines is the one that the window shows.
    runner_.save(numericValue(cptfichier1.text()));
}

void TrackingWindow::CmdSuiv_Click() { advance(LineState::Done); }
void TrackingWindow::CmdSuivQuitter_Click() { advance(LineState::Seen); }
void TrackingWindow::CmdSuivSauter_Click() { advance(LineState::ToDo); }

void TrackingWindow::advance(LineState mark) {
    takePointer();
    runner_.advance(mark);
}

void TrackingWindow::CmdPrecedent_Click() {
    takePointer();
    runner_.stepBack();
}

void TrackingWindow::takePointer() { runner_.moveTo(wholeNumber(NumFichCour.text())); }

void TrackingWindow::showCurrent(Redraw redraw) {
    showNumbers();
    DrawingPause pause(List1);
    drawList(redraw);
    List1.select(pass().current(), true);
}

void TrackingWindow::showOpening() {
    List1.repaint();
    showAlone();
}

void TrackingWindow::showDocument() { TxtEtat.setText(pass().currentPath()); }

void TrackingWindow::showEnd(Redraw redraw) {
    showNumbers();
    drawList(redraw);
    enableAdvance(false);
}

void TrackingWindow::showTop() {
    showNumbers();
    drawList(Redraw::InPlace);
    enableStepBack(false);
}

void TrackingWindow::showNumbers() {
    NumFichCour.setText(decimal(pass().current()));
    nbfich1.setText(decimal(pass().shownNumber()));
}

void TrackingWindow::drawList(Redraw redraw) {
    const auto [done, total] = passProgress(pass().list());
    window_->showProgress(done, total);
    if (redraw == Redraw::InPlace) {
        lines_.update(pass().list(), NNiveau1.levels());
    } else {
        lines_.rebuild(pass().list(), NNiveau1.levels(), redraw == Redraw::AllToDo);
        cptfichier1.setText(decimal(pass().list().lineCount()));
    }
}

void TrackingWindow::CmdPlus1_Click() {
    if (NNiveau1.hideOneMore()) drawList(Redraw::InPlace);
}

void TrackingWindow::CmdMoins1_Click() {
    if (NNiveau1.hideOneLess()) drawList(Redraw::InPlace);
}

void TrackingWindow::enableAdvance(bool enabled) {
    for (const int button : {IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMDSUIVSAUTER,
                             IDC_FORM3_CMD1, IDC_FORM3_CMD2, IDC_FORM3_CMD3}) {
        window_->control(button).setEnabled(enabled);
    }
    if (!enabled) TxtEtat.setText(L"Aucun");
}

void TrackingWindow::enableStepBack(bool enabled) {
    for (const int button : {IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4}) {
        window_->control(button).setEnabled(enabled);
    }
    if (!enabled) TxtEtat.setText(L"aucun");
}
