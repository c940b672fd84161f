#include "win32/window/win_controls.h"

#include <commctrl.h>

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
