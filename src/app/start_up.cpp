// The start-up sequence. Its order is observable: by the CAD application, and by what already
// shows when a step fails.

#include "app/command_line.h"
#include "app/program.h"
#include "common/runtime_error.h"
#include "ports/files.h"
#include "ports/list_holds.h"
#include "ports/message_boxes.h"

namespace {

RuntimeError heldElsewhere(const std::wstring& list, const ListHolder& holder) {
    const bool known = !holder.user.empty() && !holder.machine.empty();
    const std::wstring who = known ? L"par " + holder.user + L" sur " + holder.machine
                                   : L"par un autre utilisateur ou une autre machine";
    return {70, L"La liste " + list + L" est déjà ouverte " + who + L"."};
}

}  // namespace

void Program::start() {
    takeList();
    showAbout();
    places_.readAll();
    attachToCad();
    showAbout();
    cad_.identify();
    fileSystem_.emplace(platform_.automation);
    if (platform_.files.kindOf(files_.list) == PathKind::File) {
        showExistingList();
    } else {
        showSelection();
    }
}

void Program::takeList() {
    files_.list = listToWorkOn(platform_);
    const HoldAnswer answer = platform_.listHolds.take(files_.list, files_.holdFile());
    if (answer.kind == HoldAnswer::Kind::RaisedOther) throw ProgramEnd{};
    if (answer.kind == HoldAnswer::Kind::HeldElsewhere) {
        throw heldElsewhere(files_.list, answer.holder);
    }
}

void Program::attachToCad() {
    if (cad_.attach(platform_.automation)) return;
    platform_.messageBoxes.show({.text = L" Une session SolidWorks doit être ouverte  \r\n"
                                         L"   pour que Tarnwick puisse démarrer.",
                                 .title = L"Tarnwick by Mervale"});
    throw ProgramEnd{};
}
