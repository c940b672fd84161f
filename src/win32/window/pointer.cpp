#include "win32/window/pointer.h"

#include <windows.h>

#include "input/judge.h"

namespace {

const wchar_t* cursorOf(Pointer pointer) {
    switch (pointer) {
        case Pointer::Wait:
            return IDC_WAIT;
        case Pointer::ArrowAtWork:
            return IDC_APPSTARTING;
        default:
            return IDC_ARROW;
    }
}

}  // namespace

void showPointer(const Judge& judge) {
    SetCursor(LoadCursorW(nullptr, cursorOf(pointerIn(judge.situation()))));
}
