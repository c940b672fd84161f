#include "session/list_hold.h"

#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/list_holds.h"
#include "ports/platform.h"
#include "session/program_files.h"

std::wstring holderText(const ListHolder& holder) {
    const bool known = !holder.user.empty() && !holder.machine.empty();
    return known ? L"par " + holder.user + L" sur " + holder.machine
                 : L"par un autre utilisateur ou une autre machine";
}

void takeHoldOfList(Platform& platform, const ProgramFiles& files) {
    const std::wstring holdFile = ProgramFiles::holdFileOf(files.list);
    const HoldAnswer answer = platform.listHolds.take(files.list, holdFile);
    if (answer.kind == HoldAnswer::Kind::RaisedOther) throw ProgramEnd{};
    if (answer.kind == HoldAnswer::Kind::HeldElsewhere) {
        throw RuntimeError{70, L"La liste " + files.list + L" est déjà ouverte " +
                                   holderText(answer.holder) + L"."};
    }
    if (answer.hidden) {
        platform.messageBoxes.warn(
            L"Les autres utilisateurs ne peuvent pas voir que vous avez ouvert la liste "
            L"(fichier protégé ou occupé) :\r\n" +
            holdFile + L"\r\nAssurez-vous que personne d'autre n'y travaille.");
    }
}

void keepHoldOfList(Platform& platform, const ProgramFiles& files) {
    const auto holder = platform.listHolds.takeAgain();
    if (!holder) return;
    platform.messageBoxes.warn(
        L"Pendant une coupure du réseau, la liste a été ouverte " + holderText(*holder) +
        L" :\r\n" + files.list +
        L"\r\nConvenez de qui l'enregistre : une liste changée par l'autre est "
        L"gardée à côté.");
}
