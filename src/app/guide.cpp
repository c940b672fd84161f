#include "app/guide.h"

#include "common/runtime_error.h"
#include "ports/desktop.h"
#include "ports/files.h"
#include "ports/message_boxes.h"

namespace {

bool isThere(Files& files, const std::wstring& page) {
    try {
        return files.kindOf(page) == PathKind::File;
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace

void showGuide(Files& files, Desktop& desktop, MessageBoxes& boxes,
               const std::wstring& programDirectory) {
    const std::wstring page = programDirectory + L"\\guide.html";
    if (isThere(files, page) && desktop.open(page)) return;
    boxes.show({.text = L"Le guide ne peut pas être ouvert :\r\n" + page,
                .title = L"Tarnwick",
                .icon = MessageBoxContent::Icon::Warning});
}
