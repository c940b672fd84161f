#include "win32/window/modal_question.h"

#include "win32/window/input_sieve.h"
#include "win32/window/own_windows.h"

ModalQuestion::ModalQuestion() : owner_(ownerOfDialogs()) {
    for (HWND window : ownWindows()) {
        if (window == owner_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
        disabled_.push_back(window);
        EnableWindow(window, FALSE);
    }
    InputSieve::windowShown();
}

ModalQuestion::~ModalQuestion() {
    for (HWND window : disabled_) EnableWindow(window, TRUE);
}

bool ModalQuestion::topmost() const {
    return owner_ && (GetWindowLongW(owner_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}
