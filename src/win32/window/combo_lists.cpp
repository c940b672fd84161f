#include "win32/window/combo_lists.h"

#include "win32/window/win_controls.h"

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
