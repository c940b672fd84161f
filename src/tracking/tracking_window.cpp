#include "tracking/tracking_window.h"

#include <array>

#include "app/module1.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/utf8.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/settings.h"
#include "session/window_places.h"
#include "tracking/tracking_events.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_tables.h"
#include "worklist/display_depth.h"
#include "worklist/list_file.h"
#include "worklist/progress.h"

TrackingWindow::TrackingWindow(Module1& module, Platform& platform)
    : module_(module),
      platform_(platform),
      window_(platform.windows.create(kTrackingWindow, *this)),
      cad_(module, platform.desktop),
      vue_(window_->listBox(IDC_FORM3_LIST1)),
      TxtEtat(window_->control(IDC_FORM3_TXTETAT)),
      nbfich1(window_->control(IDC_FORM3_NBFICH1)),
      cptfichier1(window_->control(IDC_FORM3_CPTFICHIER1)),
      NNiveau1(window_->control(IDC_FORM3_NNIVEAU1)),
      NumFichCour(window_->control(IDC_FORM3_NUMFICHCOUR)),
      List1(window_->listBox(IDC_FORM3_LIST1)),
      CkMinimise(window_->checkBox(IDC_FORM3_CKMINIMISE)),
      CkSilent(window_->checkBox(IDC_FORM3_CKSILENT)),
      CkRecons(window_->checkBox(IDC_FORM3_CKRECONS)),
      CkRecons2(window_->checkBox(IDC_FORM3_CKRECONS2)) {}

void TrackingWindow::raise(int controlId, Event event) {
    dispatch<TrackingWindow>(*this, kTrackingBindings, controlId, event);
}

void TrackingWindow::Form_Load() {
    const WindowPlace& place = module_.place(PlacedWindow::Tracking);
    window_->moveTo(place.top, place.left);
    CocherOptions();
    CkMinimise.setVisible(false);
    NNiveau1.setText(L"0");
    LireListe();
    const int depart = ChoisirDepart();
    module_.FenetreSuiviPrete = false;
    window_->control(IDC_FORM3_CMDMEMO).setVisible(false);
    NumFichCour.setVisible(false);
    AfficherListe(module_.NouvelleListe ? 1 : 2);
    module_.FenetreSuiviPrete = true;
    // Strict on purpose: a list whose last line is the only one to do starts at its end.
    if (depart < module_.liste.DerFich) {
        Demarrer(depart);
    } else {
        DemarrerEnFin();
    }
}

void TrackingWindow::CocherOptions() {
    const std::wstring options =
        platform_.settings.read(L"tarnwick", L"startup", L"regcheck", L"1111");
    const std::array boxes{&CkMinimise, &CkSilent, &CkRecons, &CkRecons2};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->setChecked(i < options.size() && options[i] == L'1');
    }
}

std::wstring TrackingWindow::ChaineOptions() const {
    std::wstring options;
    for (const CheckBox* box : {&CkMinimise, &CkSilent, &CkRecons, &CkRecons2}) {
        options += box->checked() ? L'1' : L'0';
    }
    return options;
}

void TrackingWindow::LireListe() {
    if (!parseListFile(platform_.files.read(module_.FichListe), module_.liste)) throw ProgramEnd{};
}

int TrackingWindow::ChoisirDepart() {
    WorkList& liste = module_.liste;
    for (int i = 0; i <= liste.DerFich; ++i) {
        if (liste.EtatFich[i].code == state::kInProgress) liste.EtatFich[i].code = state::kToDo;
    }
    int depart = 0;
    while (depart < liste.DerFich && liste.EtatFich[depart].code != state::kToDo) ++depart;
    if (liste.EtatFich[depart].code == state::kToDo) {
        liste.EtatFich[depart].code = state::kInProgress;
    }
    return depart;
}

void TrackingWindow::Demarrer(int index) {
    fixerLigneCourante(index);
    nbfich1.setText(decimal(index + 1));
    cptfichier1.setText(decimal(module_.liste.lineCount()));
    List1.select(index, true);
    OuvrirLigne(index);
    TxtEtat.setText(wideText(module_.liste.EtatFich[index].path));
    MontrerDocument();
}

void TrackingWindow::DemarrerEnFin() {
    AfficherListe(0);
    ActiverSuivants(1);
    // The pointer stands past the end, so that "Précédent" searches from the last line; the count
    // shows the lines, so that saving the list writes them all.
    fixerLigneCourante(module_.liste.lineCount());
    cptfichier1.setText(decimal(module_.liste.lineCount()));
}

void TrackingWindow::CmdSortie_Click() {
    savePlace(platform_.settings, PlacedWindow::Tracking, *window_);
    platform_.settings.write(L"tarnwick", L"startup", L"RegCheck", ChaineOptions());
    cad_.closeDocument();
    throw ProgramEnd{};
}

void TrackingWindow::Form_Close() { throw ProgramEnd{}; }

// The button is hidden and has no function.
void TrackingWindow::CmdMemo_Click() {}

void TrackingWindow::CmdFichierListe_Click() {
    platform_.files.replace(module_.FichListe, [&](const ByteSink& file) {
        formatListFile(module_.liste, numericValue(cptfichier1.text()), file);
    });
}

void TrackingWindow::CmdPlus1_Click() {
    if (hideOneLevelMore(NNiveau1)) AfficherListe(0);
}

void TrackingWindow::CmdMoins1_Click() {
    if (hideOneLevelLess(NNiveau1)) AfficherListe(0);
}

void TrackingWindow::AfficherListe(std::int16_t mode) {
    const auto [done, total] = passProgress(module_.liste);
    window_->showProgress(done, total);
    if (mode == 0) {
        vue_.update(module_.liste, module_.labels, NNiveau1.text());
    } else {
        nbfich1.setText(L"0");
        cptfichier1.setText(L"0");
        vue_.rebuild(module_.liste, module_.labels, NNiveau1.text(), mode == 1);
    }
}
