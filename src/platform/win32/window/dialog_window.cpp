#include "platform/win32/window/dialog_window.h"

#include <commctrl.h>

#include "platform/win32/window/accessible_names.h"
#include "platform/win32/window/event_gate.h"
#include "platform/win32/window/hourglass.h"
#include "platform/win32/window/notifications.h"
#include "platform/win32/window/shortcuts.h"
#include "platform/win32/window/tooltips.h"
#include "platform/win32/window/win_controls.h"

namespace {

/// A drop-down shows a chosen line in its field only after it has told us of it.
void showChosenLine(HWND comboBox) {
    const LRESULT line = SendMessageW(comboBox, CB_GETCURSEL, 0, 0);
    if (line == CB_ERR) return;
    SendMessageW(comboBox, CB_SETCURSEL, static_cast<WPARAM>(line), 0);
}

// A class of our own tells our windows from the system's message boxes.
void registerWindowClass() {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = DefDlgProcW;
    windowClass.cbWndExtra = DLGWINDOWEXTRA;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = L"TarnwickWindow";
    RegisterClassExW(&windowClass);
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

void showNextTab(HWND tabStrip) {
    const LRESULT next = SendMessageW(tabStrip, TCM_GETCURSEL, 0, 0) + 1;
    const LRESULT count = SendMessageW(tabStrip, TCM_GETITEMCOUNT, 0, 0);
    SendMessageW(tabStrip, TCM_SETCURSEL, static_cast<WPARAM>(next % count), 0);
}

}  // namespace

DialogWindow::DialogWindow(const WindowTemplate& windowTemplate, EventSink& events, EventGate& gate)
    : events_(events),
      gate_(gate),
      headingId_(windowTemplate.headingId),
      focusId_(windowTemplate.focusId),
      fixedPitchId_(windowTemplate.fixedPitchId) {
    CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(windowTemplate.dialogId),
                       nullptr, procedure, reinterpret_cast<LPARAM>(this));
    layout_.emplace(window_, windowTemplate.anchors);
    chooseFonts();
    takeTemplateSize();
    tips_ = addTooltips(window_, windowTemplate.tooltips);
    nameControls(window_, windowTemplate.names);
    setShortcuts(window_, windowTemplate.dialogId);
}

DialogWindow::~DialogWindow() { unload(); }

void DialogWindow::chooseFonts() {
    const UINT dpi = GetDpiForWindow(window_);
    WindowFonts fonts(dpi);
    for (HWND child = GetWindow(window_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const int id = GetDlgCtrlID(child);
        HFONT font = fonts.text();
        if (headingId_ != 0 && id == headingId_) font = fonts.heading();
        if (fixedPitchId_ != 0 && id == fixedPitchId_) font = fonts.fixedPitch();
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    }
    layout_->measureBy(fonts.text());
    fonts_ = std::move(fonts);
    icons_.emplace(window_, dpi);
}

void DialogWindow::takeTemplateSize() {
    const SIZE size = layout_->smallestWindow();
    SetWindowPos(window_, nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    layout_->arrange();
}

void DialogWindow::changeResolution(const RECT& suggested) {
    chooseFonts();
    SetWindowPos(window_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    layout_->arrange();
}

INT_PTR CALLBACK DialogWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<DialogWindow*>(lParam)->window_ = window;
        return TRUE;
    }
    auto* self = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self ? self->handle(message, wParam, lParam) : FALSE;
}

INT_PTR DialogWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    progress_.onMessage(window_, message);
    switch (message) {
        case WM_COMMAND:
            onCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
            return TRUE;
        case WM_NOTIFY: {
            const auto* header = reinterpret_cast<NMHDR*>(lParam);
            if (header->code != static_cast<UINT>(TCN_SELCHANGE)) return FALSE;
            raise(static_cast<int>(header->idFrom), Event::Click);
            return TRUE;
        }
        case WM_SIZE:
            if (layout_ && wParam != SIZE_MINIMIZED) layout_->arrange();
            return TRUE;
        case WM_GETMINMAXINFO: {
            if (!layout_) return FALSE;
            const SIZE size = layout_->smallestWindow();
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {size.cx, size.cy};
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
            // Sent before each mouse message of a control.
            relayToTooltips(tips_, reinterpret_cast<HWND>(wParam), HIWORD(lParam));
            if (!Hourglass::shown()) return FALSE;
            SetCursor(LoadCursorW(nullptr, IDC_WAIT));
            SetWindowLongPtrW(window_, DWLP_MSGRESULT, TRUE);
            return TRUE;
        default:
            return FALSE;
    }
}

void DialogWindow::onCommand(int id, WORD code, HWND control) {
    if (id == kEnterKey || id == kEscapeKey) {
        onKey(id);
        return;
    }
    constexpr WORD kFromShortcut = 1;
    if (!control && code == kFromShortcut) onShortcut(GetDlgItem(window_, id));
    if (!control) return;
    const auto event = eventOf(control, code);
    if (!event) return;
    if (classOf(control) == ControlClass::ComboBox && *event == Event::Click) {
        showChosenLine(control);
    }
    raise(id, *event);
}

void DialogWindow::raise(int id, Event event) {
    // The handler may end this object.
    HWND window = window_;
    const int focusId = focusId_;
    gate_.deliver(events_, id, event, window);
    if (GetActiveWindow() == window) keepKeyboard(window, focusId);
}

void DialogWindow::onKey(int id) {
    HWND focus = GetFocus();
    const auto kind = id == kEnterKey && focus ? classOf(focus) : ControlClass::Other;
    // Enter in a list is a double click on its line.
    if (kind == ControlClass::ListBox) {
        raise(GetDlgCtrlID(focus), Event::DoubleClick);
    } else if (kind == ControlClass::Edit && GetParent(focus) == window_) {
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

template <class Kind>
Kind& DialogWindow::find(int id) {
    auto& entry = controls_[{id, typeid(Kind)}];
    if (!entry) entry = std::make_unique<Kind>(GetDlgItem(window_, id));
    return static_cast<Kind&>(*entry);
}

Control& DialogWindow::control(int id) { return find<WinControl>(id); }
CheckBox& DialogWindow::checkBox(int id) { return find<WinCheckBox>(id); }
ListBox& DialogWindow::listBox(int id) { return find<WinListBox>(id); }
ComboBox& DialogWindow::comboBox(int id) { return find<WinComboBox>(id); }
TabStrip& DialogWindow::tabStrip(int id) { return find<WinTabStrip>(id); }

void DialogWindow::showProgress(int done, int total) { progress_.show(window_, done, total); }

void DialogWindow::show() {
    const bool wasVisible = IsWindowVisible(window_);
    ShowWindow(window_, IsIconic(window_) ? SW_RESTORE : SW_SHOW);
    SetForegroundWindow(window_);
    if (!wasVisible && focusId_ != 0) SetFocus(GetDlgItem(window_, focusId_));
    // The splash is shown before the program serves any messages.
    UpdateWindow(window_);
}

void DialogWindow::hide() { ShowWindow(window_, SW_HIDE); }

void DialogWindow::unload() {
    gate_.forget(events_);
    if (window_) DestroyWindow(window_);
    window_ = nullptr;
}

DialogFactory::DialogFactory(EventGate& gate) : gate_(gate) { registerWindowClass(); }

std::unique_ptr<Window> DialogFactory::create(const WindowTemplate& windowTemplate,
                                              EventSink& events) {
    return std::make_unique<DialogWindow>(windowTemplate, events, gate_);
}
