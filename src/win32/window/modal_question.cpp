#include "win32/window/modal_question.h"

#include "input/judge.h"
#include "win32/window/own_windows.h"
#include "win32/window/pointer.h"

ModalQuestion::ModalQuestion(Judge& judge) : judge_(judge), owner_(ownerOfDialogs()) {
    for (HWND window : ownWindows()) {
        if (window == owner_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
        disabled_.push_back(window);
        EnableWindow(window, FALSE);
    }
    judge_.questionBegins();
    showPointer(judge_);
}

ModalQuestion::~ModalQuestion() {
    for (HWND window : disabled_) EnableWindow(window, TRUE);
    judge_.questionEnds();
    showPointer(judge_);
}

bool ModalQuestion::topmost() const {
    return owner_ && (GetWindowLongW(owner_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}
