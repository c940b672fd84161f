#include "searchfolders/configuration_window.h"

#include "cad/cad_session.h"
#include "common/encoding.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "searchfolders/configuration_tables.h"
#include "searchfolders/configurations.h"
#include "storage/program_files.h"
#include "storage/window_places.h"

namespace {

constexpr int kWidth = 13600;  ///< twips
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

MessageBoxContent outcome(bool applied) {
    using Icon = MessageBoxContent::Icon;
    return {.text = applied ? L"les répertoires de recherche de SOLIDWORKS ont été changés !"
                            : L"Echec de la tentative de modification des répertoires de recherche "
                              L"de SOLIDWORKS !",
            .title = applied ? L"Réglages SOLIDWORKS réussie" : L"Echec du Réglage SOLIDWORKS",
            .icon = applied ? Icon::None : Icon::Stop,
            .defaultButton = 2,
            .helpFile = L"DEMO.HLP",
            .helpContext = 1000};
}

}  // namespace

ConfigurationWindow::ConfigurationWindow(Platform& platform, WindowPlaces& places, CadSession& cad,
                                         FileSystemObject& fileSystem, const ProgramFiles& files,
                                         Configurations& configurations)
    : ProgramWindow(platform.windows, kConfigurationWindow, kConfigurationBindings),
      platform_(platform),
      places_(places),
      cad_(cad),
      fileSystem_(fileSystem),
      file_{files.configurations, files.othersConfigurations()},
      configurations_(configurations),
      TabStrip1(window_->tabStrip(IDC_FORM4_TABSTRIP1)),
      List1(window_->listBox(IDC_FORM4_LIST1)),
      List2(window_->listBox(IDC_FORM4_LIST2)),
      List3(window_->listBox(IDC_FORM4_LIST3)),
      NomDeLaConf(window_->control(IDC_FORM4_NOMDELACONF)),
      Cpt_Rep(window_->control(IDC_FORM4_CPT_REP)),
      Label5(window_->control(IDC_FORM4_LABEL5)),
      NNiv(window_->control(IDC_FORM4_NNIV)),
      Drive1(window_->comboBox(IDC_FORM4_DRIVE1), platform.files),
      Dir1(window_->listBox(IDC_FORM4_DIR1), Label5, platform.search, *this) {}

void ConfigurationWindow::Form_Load() {
    const int dpi = window_->dpi();
    window_->moveTo(
        areaAt(window_->place().corner(), {pixelsOf(kWidth, dpi), pixelsOf(kHeight, dpi)}));
    places_.read(PlacedWindow::SearchFolders);
    places_.restore(PlacedWindow::SearchFolders, *window_);
    showEditedCount(0);
    NNiv.reset();
    prepareTabs();
    prepareDirectories();
    clearFrom(configurations_.rows[0], 0);
    // The folders first: directories before the file's first header replace them.
    readCurrentFolders();
    file_.known = readConfigurations(configurations_, file_.path, fileSystem_, platform_.files);
    showConfigurations();
}

void ConfigurationWindow::prepareTabs() {
    TabStrip1.addTab(L"Configuration Courante");
    TabStrip1.addTab(L"Gestion des configurations");
    showPage(Page::Configurations);
}

void ConfigurationWindow::showPage(Page page) {
    const bool editing = page == Page::Editing;
    TabStrip1.selectTab(editing ? 1 : 0);
    setVisible(*window_, kConfigurationsPage, !editing);
    setVisible(*window_, kEditingPage, editing);
}

void ConfigurationWindow::TabStrip1_Click() {
    showPage(TabStrip1.selectedTab() == 1 ? Page::Editing : Page::Configurations);
}

void ConfigurationWindow::showConfigurations() {
    const int last = configurations_.last;
    List1.setLines(last + 1, [&](int line) { return configurations_.rows[line][0]; });
    showDirectories(List3, configurations_.rows[last]);
    if (last >= 1) List1.select(last, true);
    configurations_.selected = last;
}

void ConfigurationWindow::findSelection() {
    for (int i = 0; i <= configurations_.last; ++i) {
        if (List1.selected(i)) configurations_.selected = i;
    }
}

void ConfigurationWindow::List1_Click() {
    configurations_.selected = 0;
    findSelection();
    if (configurations_.selected == 0) {
        clearFrom(configurations_.rows[0], 1);
        readCurrentFolders();
    }
    showDirectories(List3, configurations_.rows[configurations_.selected]);
}

void ConfigurationWindow::readCurrentFolders() {
    const std::wstring folders = cad_.searchFolders();
    Configuration& current = configurations_.rows[0];
    current[0] = L"En Cours";
    splitFolders(folders, current);
}

void ConfigurationWindow::CmdEnregister_Click() {
    std::string text;
    appendUtf8(text, formatConfigurationFile(configurations_));
    save(platform_, file_, [&](const ByteSink& file) { file(text); });
}

void ConfigurationWindow::CmdChoisir_Click() {
    configurations_.selected = 0;
    findSelection();
    apply(configurations_.rows[configurations_.selected]);
}

void ConfigurationWindow::apply(const Configuration& configuration) {
    platform_.messageBoxes.show(outcome(cad_.setSearchFolders(joinFolders(configuration))));
}

void ConfigurationWindow::CmdDetruire_Click() {
    configurations_.selected = 0;
    findSelection();
    destroySelected(configurations_);
    showConfigurations();
}

void ConfigurationWindow::CmdAnnuler_Click() {
    places_.save(PlacedWindow::SearchFolders, *window_);
    window_->hide();
    Form_Close();
}

void ConfigurationWindow::Form_Close() {
    open_ = false;
    window_->unload();
}
