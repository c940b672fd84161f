#include "demo/steps.h"
#include "driver/wait.h"
#include "searchfolders/configuration_ids.h"
#include "selection/selection_ids.h"

namespace driver::demo {
namespace {

constexpr const char* kConfigurations =
    "Mervale 2002-2003     Gestion des répertoires de recherche";

void BuildConfiguration(Stage& stage) {
    stage.Tell("Building a configuration: a directory and all below it, but its drawings");
    stage.Press(IDC_FORM4_CMDCREER);
    stage.app.Open(IDC_FORM4_DIR1, "documents");
    stage.app.Open(IDC_FORM4_DIR1, "Convoyeur à rouleaux");
    stage.Press(IDC_FORM4_CMDAJO2);
    stage.app.WaitForText(IDC_FORM4_CPT_REP, "4");
    stage.app.Select(IDC_FORM4_LIST2, {2});
    stage.Press(IDC_FORM4_CMDRETIR1);
    stage.app.WaitForText(IDC_FORM4_CPT_REP, "3");
    stage.app.Type(IDC_FORM4_NOMDELACONF, "Convoyeurs");
    stage.app.WaitForText(IDC_FORM4_NOMDELACONF, "Convoyeurs");
    stage.ShowLines(IDC_FORM4_LIST2);
    stage.Picture("search-folders-editing", stage.app.Window(kConfigurations));
    stage.Press(IDC_FORM4_CMDVALIDER);
    WaitFor("the new configuration", [&] { return stage.app.Lines(IDC_FORM4_LIST1).size() == 2; });
}

}  // namespace

void PlaySearchFolders(Stage& stage) {
    stage.Tell("Opening the search-folder configurations");
    stage.Press(IDC_FORM1_CMDREPDEF);
    stage.app.Window(kConfigurations);
    stage.ShowCallsUpTo("GetSearchFolders");
    BuildConfiguration(stage);

    stage.Tell("Saving it, and making it the CAD session's search folders");
    stage.Press(IDC_FORM4_CMDENREGISTER);
    stage.Picture("search-folders", stage.app.Window(kConfigurations));
    stage.Press(IDC_FORM4_CMDCHOISIR);
    stage.app.Box().Answer(IDOK);
    stage.ShowCallsUpTo("setsearchfolders");
    stage.ShowConfigurationFile();
    stage.Press(IDC_FORM4_CMDANNULER);
}

}  // namespace driver::demo
