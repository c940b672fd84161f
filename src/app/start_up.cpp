// The start-up sequence. Its order is observable: by the CAD application, and by what already
// shows when a step fails.

#include "app/command_line.h"
#include "app/program.h"
#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "session/list_hold.h"

void Program::start() {
    files_.list = listToWorkOn(platform_);
    takeHoldOfList(platform_, files_);
    showAbout();
    places_.readAll();
    attachToCad();
    showAbout();
    cad_.identify();
    fileSystem_.emplace(platform_.automation);
    if (platform_.files.kindOrNothing(files_.list) == PathKind::File) {
        showExistingList();
    } else {
        showSelection();
    }
}

void Program::attachToCad() {
    if (cad_.attach(platform_.automation)) return;
    platform_.messageBoxes.show({.text = L" Une session SolidWorks doit être ouverte  \r\n"
                                         L"   pour que Tarnwick puisse démarrer.",
                                 .title = L"Tarnwick by Mervale"});
    throw ProgramEnd{};
}
