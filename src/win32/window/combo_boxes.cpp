#include "win32/window/combo_boxes.h"

#include "win32/window/focus.h"
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

DropDown::Step ComboLists::notified(HWND comboBox, WORD code) {
    Choice& choice = choices_[comboBox];
    const bool isDown = SendMessageW(comboBox, CB_GETDROPPEDSTATE, 0, 0) != 0;
    const auto step = choice.list.notified(code, isDown);
    WinComboBox box(comboBox);
    if (step == DropDown::Step::Remember) {
        choice.line = box.selectedLine();
        choice.text = box.text();
    } else if (step == DropDown::Step::GoBack) {
        box.selectLine(choice.line);
        // Typed text may be no line's.
        if (box.text() != choice.text) box.setText(choice.text);
    }
    return step;
}

void showChosenLine(HWND comboBox) {
    WinComboBox box(comboBox);
    if (const int line = box.selectedLine(); line >= 0) box.selectLine(line);
}
