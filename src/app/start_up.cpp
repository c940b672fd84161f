// The start-up sequence. Its order is observable: by the CAD application, and by what already
// shows when a step fails.

#include "app/program.h"
#include "common/runtime_error.h"
#include "platform/message_boxes.h"

void Program::start() {
    showAbout();
    places_.readAll();
    attachToCad();
    showAbout();
    cad_.identify();
    fileSystem_.emplace(platform_.automation);
    if (fileSystem_->fileExists(files_.list)) {
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
