#include "demo/steps.h"
#include "driver/wait.h"
#include "searchfolders/configuration_ids.h"
#include "selection/selection_ids.h"

namespace driver::demo {
namespace {

constexpr const char* kConfigurations =
    "Mervale 2002-2003     Gestion des répertoires de recherche";

void buildConfiguration(Stage& stage) {
    stage.tell("Building a configuration: a directory and all below it, but its drawings");
    stage.press(IDC_FORM4_CMDCREER);
    stage.app.open(IDC_FORM4_DIR1, "documents");
    stage.app.open(IDC_FORM4_DIR1, "Convoyeur à rouleaux");
    stage.press(IDC_FORM4_CMDAJO2);
    stage.app.waitForText(IDC_FORM4_CPT_REP, "4");
    stage.app.select(IDC_FORM4_LIST2, {2});
    stage.press(IDC_FORM4_CMDRETIR1);
    stage.app.waitForText(IDC_FORM4_CPT_REP, "3");
    stage.app.type(IDC_FORM4_NOMDELACONF, "Convoyeurs");
    stage.app.waitForText(IDC_FORM4_NOMDELACONF, "Convoyeurs");
    stage.showLines(IDC_FORM4_LIST2);
    stage.picture("search-folders-editing", stage.app.window(kConfigurations));
    stage.press(IDC_FORM4_CMDVALIDER);
    waitFor("the new configuration", [&] { return stage.app.lines(IDC_FORM4_LIST1).size() == 2; });
}

}  // namespace

void playSearchFolders(Stage& stage) {
    stage.tell("Opening the search-folder configurations");
    stage.press(IDC_FORM1_CMDREPDEF);
    stage.app.window(kConfigurations);
    stage.showCallsUpTo("GetSearchFolders");
    buildConfiguration(stage);

    stage.tell("Saving it, and making it the CAD session's search folders");
    stage.press(IDC_FORM4_CMDENREGISTER);
    stage.picture("search-folders", stage.app.window(kConfigurations));
    stage.press(IDC_FORM4_CMDCHOISIR);
    stage.app.answerBox(IDOK);
    stage.showCallsUpTo("setsearchfolders");
    stage.showConfigurationFile();
    stage.press(IDC_FORM4_CMDANNULER);
}

}  // namespace driver::demo
