// The start-up sequence. Its order is observable: by the CAD application, and by what already
// shows when a step fails.

#include "app/program.h"
#include "cad/cad_session.h"
#include "common/runtime_error.h"
#include "platform/automation.h"
#include "platform/message_boxes.h"
#include "session/window_places.h"

void Program::Main() {
    module_.VersionMajeure = L"1";
    module_.VersionMineure = L"05";
    module_.DateVersion = L"28/03/2004";
    ChargerAPropos();
    readPlaces();
    module_.RepAppli = platform_.programDirectory;
    module_.LibConfiguration = L"Configuration:";
    module_.labels = standardLabels();

    attachToCad();
    ChargerAPropos();
    CadSession cad(module_, platform_.desktop);
    cad.readRevision();
    cad.readWorkingDirectory();

    module_.Fso = platform_.automation.create(L"Scripting.FileSystemObject");
    module_.FichListe = module_.RepAppli + L"\\tarnwick.lst";
    module_.FichConfig = module_.RepAppli + L"\\tarnwick.cfg";
    if (isTrue(callMethod(module_.Fso, L"fileExists", {module_.FichListe}))) {
        ChargerForm2();
    } else {
        ChargerForm1();
    }
}

void Program::readPlaces() {
    for (const PlacedWindow window : {PlacedWindow::Selection, PlacedWindow::ExistingList,
                                      PlacedWindow::Tracking, PlacedWindow::SearchFolders}) {
        readPlace(platform_.settings, module_, window);
    }
}

void Program::attachToCad() {
    CadSession cad(module_, platform_.desktop);
    if (cad.attach(platform_.automation)) return;
    platform_.messageBoxes.show({.text = L" Une session SolidWorks doit être ouverte  \r\n"
                                         L"   pour que Tarnwick puisse démarrer.",
                                 .title = L"Tarnwick by Mervale"});
    throw ProgramEnd{};
}
