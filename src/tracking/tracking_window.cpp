#include "tracking/tracking_window.h"

#include "cad/cad_session.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text_decoding.h"
#include "ports/files.h"
#include "ports/platform.h"
#include "session/program_files.h"
#include "session/setting_values.h"
#include "session/window_places.h"
#include "tracking/tracking_tables.h"
#include "worklist/pass.h"

namespace {

Saved savedOf(std::optional<bool> answer) {
    if (!answer) return Saved::Unknown;
    return *answer ? Saved::Yes : Saved::No;
}

}  // namespace

TrackingWindow::TrackingWindow(Platform& platform, WindowPlaces& places, CadSession& cad,
                               const ProgramFiles& files)
    : ProgramWindow(platform.windows, kTrackingWindow, kTrackingBindings),
      platform_(platform),
      places_(places),
      cad_(cad),
      files_(files),
      pass_(platform.clock),
      marks_(platform.records, files.list, platform.clock),
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

void TrackingWindow::Form_Load(Origin origin) {
    explained([&] { load(origin); });
}

void TrackingWindow::load(Origin origin) {
    places_.restore(PlacedWindow::Tracking, *window_);
    takeOptions();
    tickOptions();
    CkMinimise.setVisible(false);
    NNiveau1.reset();
    readList();
    window_->control(IDC_FORM3_CMDMEMO).setVisible(false);
    NumFichCour.setVisible(false);
    if (origin == Origin::Resumed ? resume() : pass_.start()) {
        const bool allToDo = origin == Origin::LaunchedAfterDeclining;
        showAndOpen(allToDo ? Redraw::AllToDo : Redraw::Anew);
        cad_.bringForward();
    } else {
        // What an earlier run kept is told as it holds now, or gone when it doesn't.
        keepMarks();
        showNumbers();
        showEnd(Redraw::Anew);
    }
    settle();
}

void TrackingWindow::readList() {
    std::string bytes = platform_.files.readBytes(files_.list);
    const ListIdentity identity(bytes);
    if (!pass_.read(textInUtf8(std::move(bytes)), files_.list)) throw ProgramEnd{};
    marks_.begin(identity, pass_.list());
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
    cad_.closeDocument();
    throw ProgramEnd{};
}

void TrackingWindow::Form_Close() { throw ProgramEnd{}; }

void TrackingWindow::CmdFichierListe_Click() {
    // As many lines as the window says there are.
    const std::int32_t count = numericValue(cptfichier1.text());
    ListIdentity identity;
    platform_.files.replace(files_.list, [&](const ByteSink& file) {
        pass_.write(count, [&](std::string_view piece) {
            identity.add(piece);
            file(piece);
        });
    });
    marks_.forget();
    pass_.takeAsSaved();
    marks_.begin(identity, pass_.list());
}

void TrackingWindow::CmdSuiv_Click() { advance(state::kDone); }
void TrackingWindow::CmdSuivQuitter_Click() { advance(state::kSeen); }
void TrackingWindow::CmdSuivSauter_Click() { advance(state::kToDo); }

void TrackingWindow::advance(std::string_view mark) {
    takePointer();
    if (pass_.pastEnd()) return;
    const Saved saved = mark == state::kDone ? savedOf(cad_.save()) : Saved::Unknown;
    cad_.closeDocument();
    cad_.forgetDocument();
    if (!advancePass(mark, saved)) {
        keepMarks();
        showNumbers();
        showEnd(Redraw::InPlace);
        return;
    }
    showAndOpen(Redraw::InPlace);
    enableStepBack(true);
    cad_.bringForward();
    settle();
}

bool TrackingWindow::advancePass(std::string_view mark, Saved saved) {
    try {
        return pass_.advance(mark, saved);
    } catch (const RuntimeError&) {
        keepMarks();
        throw;
    }
}

void TrackingWindow::CmdPrecedent_Click() {
    takePointer();
    if (pass_.current() < 0) return;
    // It still counts as open: a document of the same path further up is taken for it.
    cad_.closeDocument();
    if (!pass_.stepBack()) {
        keepMarks();
        showNumbers();
        drawList(Redraw::InPlace);
        enableStepBack(false);
        return;
    }
    showAndOpen(Redraw::InPlace);
    enableAdvance(true);
    cad_.bringForward();
    settle();
}

void TrackingWindow::takePointer() { pass_.moveTo(wholeNumber(NumFichCour.text())); }

void TrackingWindow::showAndOpen(Redraw redraw) {
    showNumbers();
    {
        DrawingPause pause(List1);
        drawList(redraw);
        List1.select(pass_.current(), true);
    }
    openCurrent();
    TxtEtat.setText(pass_.currentPath());
}

void TrackingWindow::openCurrent() {
    const std::wstring path = pass_.currentPath();
    if (cad_.hasOpen(path)) {
        keepMarks();
        return;
    }
    // Shown now: the opening may take long.
    List1.repaint();
    closeOther();
    pass_.openCurrent();
    keepMarks(pass_.list().lines[pass_.current()].fileLine);
    cad_.open(path, loadingOptions());
}

void TrackingWindow::closeOther() {
    if (!cad_.hasAnyOpen()) return;
    keepMarks();
    cad_.closeDocument();
}

void TrackingWindow::showEnd(Redraw redraw) {
    drawList(redraw);
    enableAdvance(false);
}

void TrackingWindow::showNumbers() {
    NumFichCour.setText(decimal(pass_.current()));
    nbfich1.setText(decimal(pass_.shownNumber()));
}

void TrackingWindow::drawList(Redraw redraw) {
    const auto [done, total] = passProgress(pass_.list());
    window_->showProgress(done, total);
    if (redraw == Redraw::InPlace) {
        lines_.update(pass_.list(), NNiveau1.levels());
    } else {
        lines_.rebuild(pass_.list(), NNiveau1.levels(), redraw == Redraw::AllToDo);
        cptfichier1.setText(decimal(pass_.list().lineCount()));
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
