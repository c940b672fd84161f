#include "demo/steps.h"
#include "driver/wait.h"
#include "selection/selection_ids.h"

namespace driver::demo {
namespace {

constexpr const char* kSelection = "Mervale 2002 - Tarnwick";
constexpr const char* kAbout = "A Propos de Tarnwick";

void PlayAbout(Stage& stage) {
    stage.Tell("Showing the About window");
    stage.Press(IDC_FORM1_CMDAP);
    stage.Picture("about", stage.app.Window(kAbout));
    stage.app.CloseByFrame(kAbout);
    WaitFor("the About window to close", [&] { return stage.app.ShownWindows().size() == 1; });
}

}  // namespace

void PlaySelectionWindow(Stage& stage) {
    stage.Tell("Starting without a list file: the selection window opens");
    stage.app.Start();
    stage.app.Window(kSelection);
    stage.ShowCallsUpTo("GetCurrentWorkingDirectory");

    stage.Tell("Choosing a directory, its sub-directories, parts and assemblies");
    stage.app.Open(IDC_FORM1_REPERT, "Presse hydraulique");
    stage.app.Click(IDC_FORM1_SOUSREP);
    stage.app.Choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM");
    stage.app.WaitForText(IDC_FORM1_CPTFICHIER, "8");
    stage.ShowLines(IDC_FORM1_LIST1);

    stage.Tell("Marking all, then taking away those of the jack");
    stage.Press(IDC_FORM1_CMD_INV);
    stage.app.WaitForText(IDC_FORM1_NBFICH, "8");
    stage.app.Type(IDC_FORM1_N_FILTRE, "vérin\\");
    stage.app.WaitForText(IDC_FORM1_N_FILTRE, "vérin\\");
    stage.Press(IDC_FORM1_CMD_ENL);
    stage.app.WaitForText(IDC_FORM1_NBFICH, "5");
    stage.ShowLines(IDC_FORM1_LIST1);
    stage.Picture("selection", stage.app.Window(kSelection));

    PlaySearchFolders(stage);
    PlayAbout(stage);

    stage.Tell("Launching the pass");
    stage.Press(IDC_FORM1_CMD_TRACER);
}

}  // namespace driver::demo
