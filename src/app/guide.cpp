#include "app/guide.h"

#include "ports/desktop.h"
#include "ports/message_boxes.h"

void showGuide(Desktop& desktop, MessageBoxes& boxes, const std::wstring& programDirectory) {
    const std::wstring page = programDirectory + L"\\guide.html";
    if (desktop.open(page)) return;
    boxes.show({.text = L"Le guide ne peut pas être ouvert :\r\n" + page,
                .title = L"Tarnwick",
                .icon = MessageBoxContent::Icon::Warning});
}
