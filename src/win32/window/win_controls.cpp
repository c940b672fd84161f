#include "win32/window/win_controls.h"

#include <commctrl.h>

#include "win32/window/focus.h"
#include "win32/window/hints.h"

void WinLiveLabel::setText(const std::wstring& text) {
    const bool changes = this->text() != text;
    WinControl::setText(text);
    if (changes) announceChange(handle());
}

bool WinCheckBox::checked() const { return send(BM_GETCHECK) == BST_CHECKED; }

void WinCheckBox::setChecked(bool checked) {
    send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

void WinComboBox::setLines(std::span<const std::wstring> lines) {
    send(CB_RESETCONTENT);
    for (const std::wstring& line : lines) {
        send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    }
}

int WinComboBox::selectedLine() const { return sendForInt(CB_GETCURSEL); }

void WinComboBox::selectLine(int index) { send(CB_SETCURSEL, static_cast<WPARAM>(index)); }

void WinTabStrip::addTab(const std::wstring& text) {
    std::wstring writable = text;
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = writable.data();
    send(TCM_INSERTITEMW, static_cast<WPARAM>(sendForInt(TCM_GETITEMCOUNT)),
         reinterpret_cast<LPARAM>(&tab));
}

int WinTabStrip::selectedTab() const { return sendForInt(TCM_GETCURSEL); }

void WinTabStrip::selectTab(int index) { send(TCM_SETCURSEL, static_cast<WPARAM>(index)); }

void WinProgressBar::show(int done, int total) {
    send(PBM_SETRANGE32, 0, total);
    send(PBM_SETPOS, static_cast<WPARAM>(done));
}

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
