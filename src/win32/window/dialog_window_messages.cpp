// What a window makes of its messages.

#include <windows.h>

#include <commctrl.h>
#include <utility>

#include "win32/window/dialog_window.h"
#include "win32/window/focus.h"
#include "win32/window/hints.h"
#include "win32/window/message_deed.h"
#include "win32/window/message_loop.h"
#include "win32/window/own_windows.h"
#include "win32/window/system_menu.h"

namespace {

/// Whether a handler has closed the window for good.
bool isOver(HWND window) { return GetWindowLongPtrW(window, DWLP_USER) == 0; }

bool focusStaysInWindow(HWND window) {
    HWND focus = GetFocus();
    return focus && GetAncestor(focus, GA_ROOT) == window;
}

bool isButton(HWND control) { return classOf(control) == ControlClass::Button; }

/// A press on a disabled window is meant for the box that waits. Windows itself brings the box
/// forward for its owner alone, and beeps otherwise.
void bringBoxForward() {
    for (HWND window : ownWindows()) {
        HWND box = GetLastActivePopup(window);
        if (box != window) SetForegroundWindow(box);
    }
}

/// Wraps around; goes backwards with the Shift key.
void showNextTab(HWND tabStrip) {
    const LRESULT count = SendMessageW(tabStrip, TCM_GETITEMCOUNT, 0, 0);
    const LRESULT step = GetKeyState(VK_SHIFT) < 0 ? count - 1 : 1;
    const LRESULT next = SendMessageW(tabStrip, TCM_GETCURSEL, 0, 0) + step;
    SendMessageW(tabStrip, TCM_SETCURSEL, static_cast<WPARAM>(next % count), 0);
}

// Windows tells top-level windows only (the WM_SYSCOLORCHANGE message).
void tellControlsOfColours(HWND window) {
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageW(child, WM_SYSCOLORCHANGE, 0, 0);
    }
}

}  // namespace

// No exception gets out: Windows would swallow it, or end the program without a word.
INT_PTR CALLBACK DialogWindow::procedure(HWND window, UINT message, WPARAM wParam,
                                         LPARAM lParam) noexcept {
    // WM_INITDIALOG comes too soon, and is left alone: setting the focus would activate a window
    // that is not shown yet.
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
        case WM_SYSCOMMAND:
            return onSystemCommand(wParam);
        case WM_CONTEXTMENU:
            return onContextMenu(reinterpret_cast<HWND>(wParam), lParam);
        case WM_HOTKEY:
            onHotKey(static_cast<int>(wParam), HIWORD(lParam));
            return TRUE;
        case WM_DROPFILES:
            onDrop(reinterpret_cast<HDROP>(wParam));
            return TRUE;
        case WM_HELP:
            onHelp();
            return TRUE;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) place_.sizeChanged();
            return TRUE;
        case WM_GETMINMAXINFO: {
            const Size size = place_.smallestSize();
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {size.width, size.height};
            return TRUE;
        }
        case WM_DPICHANGED:
            place_.changeResolution(*reinterpret_cast<const RECT*>(lParam));
            return TRUE;
        case WM_DISPLAYCHANGE:
            place_.changeScreen();
            return TRUE;
        case WM_SETTINGCHANGE:
            // The second one comes when the user has text made larger or smaller.
            if (wParam == SPI_SETWORKAREA || wParam == SPI_SETNONCLIENTMETRICS) {
                place_.changeScreen();
            }
            return FALSE;
        case WM_SYSCOLORCHANGE:
            tellControlsOfColours(window_.get());
            return FALSE;
        case WM_CLOSE:
            raise(kTheWindow, Event::Close);
            return TRUE;
        case WM_ENDSESSION:
            if (wParam) raise(kTheWindow, Event::Close);
            return TRUE;
        case WM_SETCURSOR:
            return onSetCursor(reinterpret_cast<HWND>(wParam), static_cast<short>(LOWORD(lParam)),
                               HIWORD(lParam));
        case WM_MOUSEACTIVATE:
            return onMouseActivate();
        case WM_TIMER:
            DeferredEvents::isDue(wParam) ? serveDeferred() : hotKeys_.onTimer(wParam);
            return TRUE;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) noteUsed(window_.get());
            return FALSE;
        default:
            return FALSE;
    }
}

bool DialogWindow::isAsideMeant(bool takesSecond) const {
    return judge().judge({.kind = Deed::Kind::Aside,
                          .takesSecond = takesSecond,
                          .fromProgram = isFromProgram()}) == Verdict::Counts;
}

void DialogWindow::onHelp() {
    if (isAsideMeant(false)) gate_.run(help_);
}

INT_PTR DialogWindow::onNotify(const NMHDR& header) {
    if (header.code != static_cast<UINT>(TCN_SELCHANGE)) return FALSE;
    raise(static_cast<int>(header.idFrom), Event::Click);
    return TRUE;
}

// Sent before each mouse message of a control.
INT_PTR DialogWindow::onSetCursor(HWND control, int place, WORD mouseMessage) {
    if (place == HTERROR) {
        if (isMousePress(mouseMessage)) bringBoxForward();
        return FALSE;
    }
    relayToTooltips(tips_, control, mouseMessage);
    if (pointerIn(judge().situation()) == Pointer::Arrow) return FALSE;
    showPointer(judge());
    SetWindowLongPtrW(window_.get(), DWLP_MSGRESULT, TRUE);
    return TRUE;
}

// The second press of a double click would hide what the first one has opened.
INT_PTR DialogWindow::onMouseActivate() {
    HWND window = window_.get();
    POINT place{};
    if (GetActiveWindow() == window || !GetCursorPos(&place)) return FALSE;
    if (judge().judgeActivation(place.x, place.y) == Verdict::Counts) return FALSE;
    SetWindowLongPtrW(window, DWLP_MSGRESULT, MA_NOACTIVATEANDEAT);
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
    if (classOf(control) == ControlClass::ComboBox) return onComboBox(id, code, control);
    const auto event = eventOf(classOf(control), code, focusStaysInWindow(window_.get()));
    if (!event) return;
    // Enter presses the button clicked last: Windows sees to that after a press of the mouse, but
    // not after a click that another program posts.
    if (control == GetFocus() && isPushButton(control)) focusOn(window_.get(), control);
    raise(id, *event);
}

void DialogWindow::onComboBox(int id, WORD code, HWND comboBox) {
    const auto step = comboLists_.notified(comboBox, code);
    if (step == DropDown::Step::Act || step == DropDown::Step::ActLater) {
        showChosenLine(comboBox);
        return step == DropDown::Step::Act ? raise(id, Event::Click)
                                           : deferred_.add(id, Event::Click);
    }
    const auto event = eventOf(ControlClass::ComboBox, code, focusStaysInWindow(window_.get()));
    if (!event) return;
    // A box shown while the focus changes would take it from the control that is getting it.
    *event == Event::Validate ? deferred_.add(id, *event) : raise(id, *event);
}

void DialogWindow::serveDeferred() {
    HWND window = window_.get();
    // A handler may destroy this object.
    for (const auto& [id, event] : deferred_.take()) {
        if (isOver(window)) return;
        gate_.deliver(events_, id, event, *this);
    }
}

/// Whether an event is a command that does not count. What is typed or chosen while a handler runs
/// is no command: it waits.
bool DialogWindow::isUnmeantCommand(int id, Event event, Deed::Kind kind) const {
    const bool isClick = event == Event::Click && (!item(id) || isButton(item(id)));
    if (!isClick && event != Event::DoubleClick && event != Event::Enter) return false;
    return judge().judge({.kind = kind,
                          .window = &events_,
                          .duringSearch = events_.duringSearch(id, event),
                          .takesSecond = events_.takesSecondPress(id, event),
                          .fromProgram = isFromProgram(),
                          .usable = canUse(id)}) == Verdict::Drops;
}

/// Raises the deferred events; returns whether this control's event still counts afterwards.
bool DialogWindow::serveFirst(int id) {
    HWND window = window_.get();
    const int shown = judge().windowsShown();
    serveDeferred();
    // A user who was asked something meanwhile may have changed their mind.
    return !isOver(window) && canUse(id) && judge().windowsShown() == shown;
}

void DialogWindow::raise(int id, Event event) {
    if (isUnmeantCommand(id, event)) return;
    HWND window = window_.get();
    const int focusId = focusId_;
    deferred_.drop(id, event);
    if (!deferred_.empty() && event != Event::Close && !serveFirst(id)) return;
    gate_.deliver(events_, id, event, *this);
    if (GetActiveWindow() == window) keepKeyboard(window, GetDlgItem(window, focusId));
}

void DialogWindow::onKey(int id) {
    HWND focus = GetFocus();
    const auto kind = id == kEnterKey && focus ? classOf(focus) : ControlClass::Other;
    // Enter in a list is a double click on its line.
    if (kind == ControlClass::ListBox) {
        raise(GetDlgCtrlID(focus), Event::DoubleClick);
    } else if (kind == ControlClass::Edit && GetParent(focus) == window_.get()) {
        raise(GetDlgCtrlID(focus), Event::Enter);
    } else if (id == kEnterKey && isPushButton(focus) && GetDlgCtrlID(focus) != kEnterKey) {
        SendMessageW(focus, BM_CLICK, 0, 0);
    } else {
        raise(id, Event::Click);
    }
}

void DialogWindow::onShortcut(HWND control) {
    if (!canBeUsed(control)) return;
    // As a click does. Leaving a field validates what was typed there, which may disable the
    // control.
    focusOn(window_.get(), control);
    if (!canBeUsed(control)) return;
    if (classOf(control) == ControlClass::Button) {
        SendMessageW(control, BM_CLICK, 0, 0);
    } else if (classOf(control) == ControlClass::TabStrip) {
        showNextTab(control);
        raise(GetDlgCtrlID(control), Event::Click);
    }
}
