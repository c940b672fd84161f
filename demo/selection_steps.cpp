#include "demo/steps.h"
#include "driver/sandbox.h"
#include "driver/wait.h"
#include "selection/selection_ids.h"

namespace driver::demo {
namespace {

constexpr const char* kSelection = "Mervale 2002 - Tarnwick";
constexpr const char* kAbout = "A Propos de Tarnwick";

void playAbout(Stage& stage) {
    stage.tell("Showing the About window");
    stage.press(IDC_FORM1_CMDAP);
    stage.picture("about", stage.app.window(kAbout));
    stage.app.closeByFrame(kAbout);
    waitFor("the About window to close", [&] { return stage.app.shownWindows().size() == 1; });
}

/// Imports a list from a spreadsheet, some lines of which name no existing document.
void playImport(Stage& stage) {
    stage.tell("Importing a list that comes from a spreadsheet");
    std::string table = "Ordre;Document;Indice\r\n";
    for (std::size_t i = 0; i < 4; ++i) table += "M-12;" + stage.documents[i] + ";B\r\n";
    const auto file = stage.sandbox.documents() / "ordre M-12.csv";
    writeFileBytes(file, table + "M-12;Presse hydraulique\\Carter.SLDPRT;A\r\n");
    stage.app.chooseInSystemMenu(kSelection, IDM_FORM1_IMPORTER);
    stage.app.openFile("Importer une liste", file);
    const ModalBox box = stage.app.box();
    stage.app.waitForText(IDC_FORM1_NBFICH, "4");
    stage.picture("selection-import", box.window(), stage.app.window(kSelection));
    box.answer(IDOK);
}

}  // namespace

void playSelectionWindow(Stage& stage) {
    stage.tell("Starting without a list file: the selection window opens");
    stage.app.start();
    stage.app.window(kSelection);
    stage.showCallsUpTo("GetCurrentWorkingDirectory");

    playImport(stage);

    stage.tell("Choosing a directory, its sub-directories, parts and assemblies");
    stage.app.open(IDC_FORM1_REPERT, "Presse hydraulique");
    stage.app.click(IDC_FORM1_SOUSREP);
    stage.app.choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM");
    stage.app.waitForText(IDC_FORM1_CPTFICHIER, "8");
    stage.showLines(IDC_FORM1_LIST1);

    stage.tell("Marking all, then taking away those of the jack");
    stage.press(IDC_FORM1_CMD_INV);
    stage.app.waitForText(IDC_FORM1_NBFICH, "8");
    stage.app.type(IDC_FORM1_N_FILTRE, "vérin\\");
    stage.app.waitForText(IDC_FORM1_N_FILTRE, "vérin\\");
    stage.press(IDC_FORM1_CMD_ENL);
    stage.app.waitForText(IDC_FORM1_NBFICH, "5");
    stage.showLines(IDC_FORM1_LIST1);
    stage.picture("selection", stage.app.window(kSelection));

    playSearchFolders(stage);
    playAbout(stage);

    stage.tell("Launching the pass");
    stage.press(IDC_FORM1_CMD_TRACER);
}

}  // namespace driver::demo
