#include "storage/program_files.h"

#include <algorithm>

#include "common/runtime_error.h"
#include "common/text.h"
#include "ports/dialogs.h"
#include "ports/list_holds.h"
#include "ports/machine.h"
#include "worklist/mark_keeper.h"

bool ProgramFiles::owns(const std::wstring& path) const {
    const std::wstring own[] = {list,
                                previousList(),
                                othersList(),
                                configurations,
                                othersConfigurations(),
                                holdFileOf(list),
                                keptMarksFile(list),
                                keptMarksFile(previousList())};
    return std::ranges::any_of(
        own, [&](const std::wstring& file) { return equalIgnoringCase(file, path); });
}

FileSystemObject::FileSystemObject(Automation& automation)
    : object_(automation.create(L"Scripting.FileSystemObject")) {}

bool FileSystemObject::fileExists(const std::wstring& path) {
    try {
        return isTrue(callMethod(object_, L"fileExists", {path}));
    } catch (RuntimeError& error) {
        error.addLine(L"Fichier : " + path);
        throw;
    }
}

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
