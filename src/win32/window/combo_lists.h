#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "input/drop_down.h"

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
