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

int Form3::ligneCourante() const { return wholeNumber(NumFichCour.text()); }

void Form3::fixerLigneCourante(long index) { NumFichCour.setText(decimal(index)); }

void Form3::CmdSuiv_Click() { Avancer(state::kDone); }
void Form3::CmdSuivQuitter_Click() { Avancer(state::kSeen); }
void Form3::CmdSuivSauter_Click() { Avancer(state::kToDo); }

void Form3::Cmd1_Click() { CmdSuiv_Click(); }
void Form3::Cmd2_Click() { CmdSuivQuitter_Click(); }
void Form3::Cmd3_Click() { CmdSuivSauter_Click(); }
void Form3::Cmd4_Click() { CmdPrecedent_Click(); }

void Form3::Avancer(std::string_view mark) {
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

    const int suivante = prochaineAFaire(liste, courante);
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

void Form3::CmdPrecedent_Click() {
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

    const int precedente = precedenteAFaire(liste, courante);
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

void Form3::PasserEnCours(int index) {
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

void Form3::OuvrirLigne(int index) {
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

void Form3::MontrerDocument() { cad_.bringForward(); }

void Form3::ActiverSuivants(std::int16_t flag) {
    for (const int button : {IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMDSUIVSAUTER,
                             IDC_FORM3_CMD1, IDC_FORM3_CMD2, IDC_FORM3_CMD3}) {
        window_->control(button).setEnabled(flag != 1);
    }
    if (flag == 1) TxtEtat.setText(L"Aucun");
}

void Form3::ActiverPrecedent(std::int16_t flag) {
    for (const int button : {IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4}) {
        window_->control(button).setEnabled(flag != 1);
    }
    if (flag == 1) TxtEtat.setText(L"aucun");
}
