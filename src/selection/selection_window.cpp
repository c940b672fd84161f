#include "selection/selection_window.h"

#include "app/module1.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "pickers/directory_listing.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "selection/selection_events.h"
#include "selection/selection_ids.h"
#include "selection/selection_tables.h"
#include "session/navigation.h"
#include "session/window_places.h"
#include "worklist/display_depth.h"
#include "worklist/list_file.h"

namespace {

const std::wstring kTypes[] = {L"*.SLDDRW",
                               L"*.SLDASM",
                               L"*.SLDPRT",
                               L"*.SLDPRT ; *.SLDASM",
                               L"*.SLDPRT ; *.SLDDRW",
                               L"*.SLDASM ; *.SLDDRW",
                               L"*.SLDPRT ; *.SLDASM ; *.SLDDRW"};

}  // namespace

SelectionWindow::SelectionWindow(Module1& module, Platform& platform, Navigation& navigation)
    : module_(module),
      platform_(platform),
      navigation_(navigation),
      window_(platform.windows.create(kSelectionWindow, *this)),
      typef(window_->comboBox(IDC_FORM1_TYPEF)),
      sousrep(window_->checkBox(IDC_FORM1_SOUSREP)),
      nbfich(window_->control(IDC_FORM1_NBFICH)),
      cptfichier(window_->control(IDC_FORM1_CPTFICHIER)),
      NNiveau(window_->control(IDC_FORM1_NNIVEAU)),
      n_filtre(window_->control(IDC_FORM1_N_FILTRE)),
      unite(window_->comboBox(IDC_FORM1_UNITE), platform.files),
      repert(window_->listBox(IDC_FORM1_REPERT), platform.files),
      liste_(window_->listBox(IDC_FORM1_LIST1), trouves_, module.labels) {}

void SelectionWindow::raise(int controlId, Event event) {
    dispatch<SelectionWindow>(*this, kSelectionBindings, controlId, event);
}

void SelectionWindow::Form_Load() {
    navigation_.FermerAPropos();
    cptfichier.setText(L"0");
    nbfich.setText(L"0");
    NNiveau.setText(L"0");
    typef.setLines(kTypes);
    typef.setText(L"*.SLDDRW");
    MasquerEssais();
    ChoisirDepart();
    const WindowPlace& place = module_.place(PlacedWindow::Selection);
    window_->moveTo(place.top, place.left);
}

void SelectionWindow::ChoisirDepart() {
    constexpr std::size_t kDriveLength = 3;
    const bool named = module_.RepTravailSw.size() >= kDriveLength;
    const std::wstring depart = named ? module_.RepTravailSw : L"c:\\";
    unite.fill();
    unite.setDrive(depart);
    repert.setPath(depart);
    repert_Change();
}

void SelectionWindow::MasquerEssais() {
    for (const int id :
         {IDC_FORM1_FILE1, IDC_FORM1_REP, IDC_FORM1_CDMTEST, IDC_FORM1_S, IDC_FORM1_T}) {
        window_->control(id).setVisible(false);
    }
}

void SelectionWindow::Form_Close() { throw ProgramEnd{}; }

void SelectionWindow::List1_Click() { nbfich.setText(decimal(liste_.chosenCount())); }

void SelectionWindow::CmdCoche_Click() {
    liste_.toggleHighlighted();
    List1_Click();
}

void SelectionWindow::Cmd_Inv_Click() {
    liste_.toggleAll();
    List1_Click();
}

void SelectionWindow::cmd_ajo_Click() {
    liste_.chooseMatching(n_filtre.text());
    List1_Click();
}

void SelectionWindow::cmd_enl_Click() {
    liste_.dropMatching(n_filtre.text());
    List1_Click();
}

void SelectionWindow::CmdPlus_Click() {
    if (hideOneLevelMore(NNiveau)) liste_.RemplirListe(0, NNiveau.text());
}

void SelectionWindow::CmdMoins_Click() {
    if (hideOneLevelLess(NNiveau)) liste_.RemplirListe(0, NNiveau.text());
}

void SelectionWindow::CmdAP_Click() { navigation_.ChargerAPropos(); }

void SelectionWindow::CmdRepDef_Click() { navigation_.ChargerForm4(); }

void SelectionWindow::cmd_tracer_Click() { LancerTraitement(); }

void SelectionWindow::LancerTraitement() {
    savePlace(platform_.settings, PlacedWindow::Selection, *window_);
    std::string text;
    const long count = numericValue(cptfichier.text());
    for (long i = 0; i < count; ++i) {
        if (liste_.chosen(static_cast<int>(i))) appendFreshLine(text, cheminComplet(i));
    }
    platform_.files.replace(module_.FichListe, [&](const ByteSink& file) { file(text); });
    navigation_.ChargerForm3();
    window_->hide();
}

std::wstring SelectionWindow::cheminComplet(long index) const {
    const std::wstring& entry = trouves_.entry(index);
    return trouves_.CheminsComplets() ? entry : repFichiers_ + L"\\" + entry;
}

void SelectionWindow::cmd_sortie_Click() {
    savePlace(platform_.settings, PlacedWindow::Selection, *window_);
    window_->unload();
    throw ProgramEnd{};
}

void SelectionWindow::cmd_annuler_Click() {
    window_->unload();
    throw ProgramEnd{};
}
