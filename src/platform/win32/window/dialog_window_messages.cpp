// What a window makes of its messages.

#include <windows.h>

#include <commctrl.h>

#include "platform/win32/window/control_class.h"
#include "platform/win32/window/dialog_window.h"
#include "platform/win32/window/hourglass.h"
#include "platform/win32/window/input_sieve.h"
#include "platform/win32/window/own_windows.h"
#include "platform/win32/window/tooltips.h"

namespace {

/// A drop-down shows a chosen line in its field only after it has told us of it.
void showChosenLine(HWND comboBox) {
    const LRESULT line = SendMessageW(comboBox, CB_GETCURSEL, 0, 0);
    if (line == CB_ERR) return;
    SendMessageW(comboBox, CB_SETCURSEL, static_cast<WPARAM>(line), 0);
}

bool focusStaysInWindow(HWND window) {
    HWND focus = GetFocus();
    return focus && GetAncestor(focus, GA_ROOT) == window;
}

bool canBeUsed(HWND control) {
    return control && IsWindowVisible(control) && IsWindowEnabled(control);
}

/// A control that a handler disabled or hid no longer takes the keyboard: another one must.
void keepKeyboard(HWND window, int focusId) {
    if (canBeUsed(GetFocus())) return;
    HWND home = GetDlgItem(window, focusId);
    SetFocus(canBeUsed(home) ? home : GetNextDlgTabItem(window, nullptr, FALSE));
}

bool isButton(HWND control) { return classOf(control) == ControlClass::Button; }

bool isPress(WORD mouseMessage) {
    return mouseMessage == WM_LBUTTONDOWN || mouseMessage == WM_RBUTTONDOWN ||
           mouseMessage == WM_MBUTTONDOWN || mouseMessage == WM_XBUTTONDOWN;
}

/// A press on a window that is disabled is meant for the box that waits. Windows itself knows only
/// the box's owner, and beeps.
void bringBoxForward() {
    for (HWND window : ownWindows()) {
        HWND box = GetLastActivePopup(window);
        if (box != window) SetForegroundWindow(box);
    }
}

void showNextTab(HWND tabStrip) {
    const LRESULT next = SendMessageW(tabStrip, TCM_GETCURSEL, 0, 0) + 1;
    const LRESULT count = SendMessageW(tabStrip, TCM_GETITEMCOUNT, 0, 0);
    SendMessageW(tabStrip, TCM_SETCURSEL, static_cast<WPARAM>(next % count), 0);
}

}  // namespace

// Nothing that is thrown gets out: Windows would swallow it, or end the program without a word.
INT_PTR CALLBACK DialogWindow::procedure(HWND window, UINT message, WPARAM wParam,
                                         LPARAM lParam) noexcept {
    // WM_INITDIALOG, too: the focus on a window that is not shown yet would activate it.
    auto* self = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!self) return FALSE;
    INT_PTR answer = FALSE;
    self->gate_.guard([&] { answer = self->handle(message, wParam, lParam); });
    return answer;
}

INT_PTR DialogWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WinTaskbarButton::madeMessage()) progress_.onButtonMade();
    switch (message) {
        case WM_COMMAND:
            onCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
            return TRUE;
        case WM_NOTIFY:
            return onNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) layout_.arrange();
            return TRUE;
        case WM_GETMINMAXINFO: {
            const Size size = smallestSize();
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {size.width, size.height};
            return TRUE;
        }
        case WM_DPICHANGED:
            changeResolution(*reinterpret_cast<const RECT*>(lParam));
            return TRUE;
        case WM_CLOSE:
            raise(kTheWindow, Event::Close);
            return TRUE;
        case WM_ENDSESSION:
            if (wParam) raise(kTheWindow, Event::Close);
            return TRUE;
        case WM_SETCURSOR:
            return onSetCursor(reinterpret_cast<HWND>(wParam), static_cast<short>(LOWORD(lParam)),
                               HIWORD(lParam));
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) noteUsed(window_.get());
            return FALSE;
        default:
            return FALSE;
    }
}

INT_PTR DialogWindow::onNotify(const NMHDR& header) {
    if (header.code != static_cast<UINT>(TCN_SELCHANGE)) return FALSE;
    raise(static_cast<int>(header.idFrom), Event::Click);
    return TRUE;
}

// Sent before each mouse message of a control.
INT_PTR DialogWindow::onSetCursor(HWND control, int place, WORD mouseMessage) {
    if (place == HTERROR) {
        if (isPress(mouseMessage)) bringBoxForward();
        return FALSE;
    }
    relayToTooltips(tips_, control, mouseMessage);
    if (!Hourglass::shown()) return FALSE;
    Hourglass::show();
    SetWindowLongPtrW(window_.get(), DWLP_MSGRESULT, TRUE);
    return TRUE;
}

void DialogWindow::onCommand(int id, WORD code, HWND control) {
    if (id == kEnterKey || id == kEscapeKey) {
        onKey(id);
        return;
    }
    constexpr WORD kFromShortcut = 1;
    if (!control && code == kFromShortcut) onShortcut(item(id));
    if (!control) return;
    const auto event = eventOf(classOf(control), code, focusStaysInWindow(window_.get()));
    if (!event) return;
    if (classOf(control) == ControlClass::ComboBox && *event == Event::Click) {
        showChosenLine(control);
    }
    raise(id, *event);
}

/// What a person types or chooses meanwhile is kept; what a press would start is not.
bool DialogWindow::isUnmeantCommand(int id, Event event) const {
    const bool isClick = event == Event::Click && (!item(id) || isButton(item(id)));
    if (!isClick && event != Event::DoubleClick && event != Event::Enter) return false;
    return !startsCommand(InputSieve::currentPress(), events_.takesSecondPress(id, event),
                          gate_.busy());
}

void DialogWindow::raise(int id, Event event) {
    if (isUnmeantCommand(id, event)) return;
    // The handler may end this object.
    HWND window = window_.get();
    const int focusId = focusId_;
    gate_.deliver(events_, id, event, *this);
    if (GetActiveWindow() == window) keepKeyboard(window, focusId);
}

void DialogWindow::onKey(int id) {
    HWND focus = GetFocus();
    const auto kind = id == kEnterKey && focus ? classOf(focus) : ControlClass::Other;
    // Enter in a list is a double click on its line.
    if (kind == ControlClass::ListBox) {
        raise(GetDlgCtrlID(focus), Event::DoubleClick);
    } else if (kind == ControlClass::Edit && GetParent(focus) == window_.get()) {
        raise(GetDlgCtrlID(focus), Event::Enter);
    } else {
        raise(id, Event::Click);
    }
}

void DialogWindow::onShortcut(HWND control) {
    if (!canBeUsed(control)) return;
    // As a click would: leaving a field ends what was typed in it, which may change what can be
    // used.
    SetFocus(control);
    if (!canBeUsed(control)) return;
    if (classOf(control) == ControlClass::Button) {
        SendMessageW(control, BM_CLICK, 0, 0);
    } else if (classOf(control) == ControlClass::TabStrip) {
        showNextTab(control);
        raise(GetDlgCtrlID(control), Event::Click);
    }
}
