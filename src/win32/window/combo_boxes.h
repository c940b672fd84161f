#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "input/notifications.h"

/// While it lives a combo box may be resized: Windows then completes what is typed in its field to
/// a line that begins so, and selects it. Afterwards the field is as it was. Any other control is
/// left alone.
class KeptComboField {
 public:
    explicit KeptComboField(HWND control);
    ~KeptComboField();
    KeptComboField(const KeptComboField&) = delete;
    KeptComboField& operator=(const KeptComboField&) = delete;

 private:
    HWND box_ = nullptr;  ///< null when there is nothing to keep
    LRESULT line_ = 0;
    std::wstring text_;
    DWORD start_ = 0;
    DWORD end_ = 0;
};

/// The drop-down lists of a window, as their notifications come in.
class ComboLists {
 public:
    /// What a notification of a combo box comes to. What was chosen is kept, and brought back,
    /// here.
    DropDown::Step notified(HWND comboBox, WORD code);

 private:
    struct Choice {
        DropDown list;
        int line = -1;
        std::wstring text = {};
    };

    std::map<HWND, Choice> choices_;
};

/// A drop-down shows a chosen line in its field only after it has told us of it.
void showChosenLine(HWND comboBox);
