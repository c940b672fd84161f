#include "app/guide.h"

#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"

void showGuide(Files& files, Desktop& desktop, MessageBoxes& boxes,
               const std::wstring& programDirectory) {
    const std::wstring page = programDirectory + L"\\guide.html";
    if (files.kindOrNothing(page) == PathKind::File && desktop.open(page)) return;
    boxes.warn(L"Le guide ne peut pas être ouvert :\r\n" + page);
}
