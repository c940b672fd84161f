// The tracking window's sequencer: from one document of the pass to another.

#include "app/module1.h"
#include "cad/document_type.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "common/utf8.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"
#include "worklist/next_line.h"

int TrackingWindow::ligneCourante() const { return wholeNumber(NumFichCour.text()); }

void TrackingWindow::fixerLigneCourante(long index) { NumFichCour.setText(decimal(index)); }

void TrackingWindow::CmdSuiv_Click() { Avancer(state::kDone); }
void TrackingWindow::CmdSuivQuitter_Click() { Avancer(state::kSeen); }
void TrackingWindow::CmdSuivSauter_Click() { Avancer(state::kToDo); }

void TrackingWindow::Cmd1_Click() { CmdSuiv_Click(); }
void TrackingWindow::Cmd2_Click() { CmdSuivQuitter_Click(); }
void TrackingWindow::Cmd3_Click() { CmdSuivSauter_Click(); }
void TrackingWindow::Cmd4_Click() { CmdPrecedent_Click(); }

void TrackingWindow::Avancer(std::string_view mark) {
    WorkList& liste = module_.liste;
    const int courante = ligneCourante();
    if (courante >= List1.count()) return;
    if (mark == state::kDone) cad_.save();
    cad_.closeDocument();
    module_.NomDocCourant.clear();
    if (courante >= 0) {
        List1.select(courante, false);
        liste.EtatFich[courante].code = mark;
    }

    const int suivante = nextToDo(liste, courante);
    fixerLigneCourante(suivante);
    if (suivante > liste.DerFich) {
        AfficherListe(0);
        ActiverSuivants(1);
        return;
    }
    PasserEnCours(suivante);
    ActiverPrecedent(0);
    MontrerDocument();
}

void TrackingWindow::CmdPrecedent_Click() {
    WorkList& liste = module_.liste;
    int courante = ligneCourante();
    if (courante < 0) return;
    // The name is kept: a document of the same path further up counts as open.
    cad_.closeDocument();
    if (courante >= List1.count()) {
        courante = List1.count() - 1;
    } else {
        List1.select(courante, false);
        liste.EtatFich[courante].code = state::kToDo;
        --courante;
    }

    const int precedente = previousToDo(liste, courante);
    fixerLigneCourante(precedente);
    if (precedente < 0) {
        AfficherListe(0);
        ActiverPrecedent(1);
        return;
    }
    PasserEnCours(precedente);
    ActiverSuivants(0);
    MontrerDocument();
}

void TrackingWindow::PasserEnCours(int index) {
    WorkLine& ligne = module_.liste.EtatFich[index];
    nbfich1.setText(decimal(index + 1));
    ligne.code = state::kInProgress;
    {
        DrawingPause pause(List1);
        AfficherListe(0);
        List1.select(index, true);
    }
    OuvrirLigne(index);
    TxtEtat.setText(wideText(ligne.path));
}

void TrackingWindow::OuvrirLigne(int index) {
    const std::wstring path = wideText(module_.liste.EtatFich[index].path);
    if (equalIgnoringCase(path, module_.NomDocCourant)) return;
    // Shown now: the opening may take long.
    List1.repaint();
    if (!module_.NomDocCourant.empty()) cad_.closeDocument();
    module_.NomDocCourant = path;
    typeDocument_ = documentType(path, typeDocument_);
    cad_.open(path, typeDocument_, CkSilent.checked());
    cad_.activate(path, typeDocument_);
    cad_.showApplication();
    if (CkRecons2.checked()) {
        cad_.rebuild(false);
    } else if (CkRecons.checked()) {
        cad_.rebuild(true);
    }
}

void TrackingWindow::MontrerDocument() { cad_.bringForward(); }

void TrackingWindow::ActiverSuivants(std::int16_t flag) {
    for (const int button : {IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMDSUIVSAUTER,
                             IDC_FORM3_CMD1, IDC_FORM3_CMD2, IDC_FORM3_CMD3}) {
        window_->control(button).setEnabled(flag != 1);
    }
    if (flag == 1) TxtEtat.setText(L"Aucun");
}

void TrackingWindow::ActiverPrecedent(std::int16_t flag) {
    for (const int button : {IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4}) {
        window_->control(button).setEnabled(flag != 1);
    }
    if (flag == 1) TxtEtat.setText(L"aucun");
}
