#include "platform/win32/window/win_message_boxes.h"

#include "platform/win32/window/modal_box.h"

namespace {

UINT styleOf(const MessageBoxContent& box) {
    UINT style = box.buttons == MessageBoxContent::Buttons::YesNo ? MB_YESNO : MB_OK;
    if (box.icon == MessageBoxContent::Icon::Stop) style |= MB_ICONSTOP;
    if (box.defaultButton == 2) style |= MB_DEFBUTTON2;
    return style;
}

}  // namespace

MessageBoxes::Answer WinMessageBoxes::show(const MessageBoxContent& box) {
    switch (showModalBox({.text = box.text,
                          .title = box.title,
                          .style = styleOf(box),
                          .helpContext = static_cast<DWORD>(box.helpContext),
                          .helpFile = box.helpFile})) {
        case IDYES:
            return Answer::Yes;
        case IDNO:
            return Answer::No;
        default:
            return Answer::Ok;
    }
}
