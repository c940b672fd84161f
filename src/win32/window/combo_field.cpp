#include "win32/window/combo_field.h"

#include "win32/window/control_class.h"
#include "win32/window/win_controls.h"

namespace {

bool hasField(HWND control) {
    return classOf(control) == ControlClass::ComboBox &&
           (GetWindowLongW(control, GWL_STYLE) & CBS_DROPDOWNLIST) == CBS_DROPDOWN;
}

}  // namespace

KeptComboField::KeptComboField(HWND control) {
    if (!hasField(control)) return;
    box_ = control;
    line_ = SendMessageW(box_, CB_GETCURSEL, 0, 0);
    text_ = WinComboBox(box_).text();
    SendMessageW(box_, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start_),
                 reinterpret_cast<LPARAM>(&end_));
}

KeptComboField::~KeptComboField() {
    if (!box_) return;
    if (SendMessageW(box_, CB_GETCURSEL, 0, 0) != line_) {
        SendMessageW(box_, CB_SETCURSEL, static_cast<WPARAM>(line_), 0);
    }
    WinComboBox(box_).setText(text_);
    SendMessageW(box_, CB_SETEDITSEL, 0, MAKELPARAM(start_, end_));
}
