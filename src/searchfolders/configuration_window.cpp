#include "searchfolders/configuration_window.h"

#include "app/module1.h"
#include "platform/platform.h"
#include "searchfolders/configuration_events.h"
#include "searchfolders/configuration_file.h"
#include "searchfolders/configuration_ids.h"
#include "searchfolders/configuration_tables.h"
#include "searchfolders/folder_list.h"
#include "session/window_places.h"

namespace {

constexpr int kWidth = 13600;  // twips
constexpr int kHeight = 6200;

constexpr int kConfigurationsPage[] = {
    IDC_FORM4_FRATAB0,       IDC_FORM4_LABEL1,      IDC_FORM4_LABEL2,     IDC_FORM4_LABEL4,
    IDC_FORM4_LIST1,         IDC_FORM4_LIST3,       IDC_FORM4_CMDCREER,   IDC_FORM4_CMDMODIFIER,
    IDC_FORM4_CMDRENOMMER,   IDC_FORM4_CMDDETRUIRE, IDC_FORM4_CMDCHOISIR, IDC_FORM4_CMDANNULER,
    IDC_FORM4_CMDENREGISTER,
};

constexpr int kEditingPage[] = {
    IDC_FORM4_FRATAB1,     IDC_FORM4_DRIVE1,    IDC_FORM4_DIR1,        IDC_FORM4_CMDAJO1,
    IDC_FORM4_CMDAJO2,     IDC_FORM4_CMDRETIR1, IDC_FORM4_CMDRETIR2,   IDC_FORM4_LIST2,
    IDC_FORM4_CMDMOINS1,   IDC_FORM4_CMDPLUS1,  IDC_FORM4_NNIV,        IDC_FORM4_LABEL5,
    IDC_FORM4_CPT_REP,     IDC_FORM4_LABEL3,    IDC_FORM4_NOMDELACONF, IDC_FORM4_CMDVALIDER,
    IDC_FORM4_CMDANNULER1,
};

template <std::size_t Count>
void setVisible(Window& window, const int (&controls)[Count], bool visible) {
    for (const int id : controls) window.control(id).setVisible(visible);
}

void showDirectories(ListBox& list, const Configuration& configuration) {
    list.setLines(static_cast<int>(directoryCount(configuration)),
                  [&](int line) { return configuration[line + 1]; });
}

}  // namespace

ConfigurationWindow::ConfigurationWindow(Module1& module, Platform& platform)
    : module_(module),
      platform_(platform),
      window_(platform.windows.create(kConfigurationWindow, *this)),
      TabStrip1(window_->tabStrip(IDC_FORM4_TABSTRIP1)),
      List1(window_->listBox(IDC_FORM4_LIST1)),
      List2(window_->listBox(IDC_FORM4_LIST2)),
      List3(window_->listBox(IDC_FORM4_LIST3)),
      NomDeLaConf(window_->control(IDC_FORM4_NOMDELACONF)),
      Cpt_Rep(window_->control(IDC_FORM4_CPT_REP)),
      NNiv(window_->control(IDC_FORM4_NNIV)),
      Drive1(window_->comboBox(IDC_FORM4_DRIVE1), platform.files),
      Dir1(window_->listBox(IDC_FORM4_DIR1), platform.files) {}

void ConfigurationWindow::raise(int controlId, Event event) {
    dispatch<ConfigurationWindow>(*this, kConfigurationBindings, controlId, event);
}

void ConfigurationWindow::Form_Load() {
    window_->resize(kWidth, kHeight);
    readPlace(platform_.settings, module_, PlacedWindow::SearchFolders);
    const WindowPlace& place = module_.place(PlacedWindow::SearchFolders);
    window_->moveTo(place.top, place.left);
    Cpt_Rep.setText(L"0");
    NNiv.setText(L"0");
    PreparerOnglets();
    PreparerRepertoires();
    clearFrom(module_.configs.ConfRep[0], 0);
    // The folders first: directories before the file's first header are written over them.
    LireRepCourants(module_);
    LireConfigs(module_, platform_.files);
    AfficherConfs();
}

void ConfigurationWindow::PreparerOnglets() {
    TabStrip1.addTab(L"Configuration Courante");
    TabStrip1.addTab(L"Gestion des configurations");
    MontrerPage(Page::Configurations);
}

void ConfigurationWindow::MontrerPage(Page page) {
    const bool editing = page == Page::Editing;
    TabStrip1.selectTab(editing ? 1 : 0);
    setVisible(*window_, kConfigurationsPage, !editing);
    setVisible(*window_, kEditingPage, editing);
}

void ConfigurationWindow::TabStrip1_Click() {
    MontrerPage(TabStrip1.selectedTab() == 1 ? Page::Editing : Page::Configurations);
}

void ConfigurationWindow::AfficherConfs() {
    Configurations& configs = module_.configs;
    List1.setLines(configs.NbConf + 1, [&](int line) { return configs.ConfRep[line][0]; });
    showDirectories(List3, configs.ConfRep[configs.NbConf]);
    if (configs.NbConf >= 1) List1.select(configs.NbConf, true);
    configs.ConfSel = configs.NbConf;
}

void ConfigurationWindow::ChercherSelection() {
    Configurations& configs = module_.configs;
    for (std::int16_t i = 0; i <= configs.NbConf; ++i) {
        if (List1.selected(i)) configs.ConfSel = i;
    }
}

void ConfigurationWindow::List1_Click() {
    Configurations& configs = module_.configs;
    configs.ConfSel = 0;
    ChercherSelection();
    if (configs.ConfSel == 0) {
        clearFrom(configs.ConfRep[0], 1);
        LireRepCourants(module_);
    }
    showDirectories(List3, configs.ConfRep[configs.ConfSel]);
}

void ConfigurationWindow::CmdEnregister_Click() { EcrireConfigs(module_, platform_.files); }

void ConfigurationWindow::CmdChoisir_Click() {
    module_.configs.ConfSel = 0;
    ChercherSelection();
    AppliquerConf(module_, platform_.messageBoxes, module_.configs.ConfSel);
}

void ConfigurationWindow::CmdDetruire_Click() {
    module_.configs.ConfSel = 0;
    ChercherSelection();
    destroySelected(module_.configs);
    AfficherConfs();
}

void ConfigurationWindow::CmdAnnuler_Click() {
    SauverPosition();
    RetenirPosition();
    window_->hide();
    Form_Close();
}

void ConfigurationWindow::Form_Close() {
    open_ = false;
    window_->unload();
}

void ConfigurationWindow::SauverPosition() {
    savePlace(platform_.settings, PlacedWindow::SearchFolders, *window_);
}

void ConfigurationWindow::RetenirPosition() {
    module_.place(PlacedWindow::SearchFolders) = {withinSixteenBits(window_->top()),
                                                        withinSixteenBits(window_->left())};
}
