#include "platform/win32/dialog_window.h"

#include <commctrl.h>

#include "platform/win32/control_layout.h"
#include "platform/win32/event_gate.h"
#include "platform/win32/hourglass.h"
#include "platform/win32/notifications.h"
#include "platform/win32/tooltips.h"
#include "platform/win32/win_controls.h"

namespace {

constexpr int kTwipsPerInch = 1440;

int toTwips(HWND window, int pixels) {
    return MulDiv(pixels, kTwipsPerInch, static_cast<int>(GetDpiForWindow(window)));
}

int toPixels(HWND window, int twips) {
    return MulDiv(twips, static_cast<int>(GetDpiForWindow(window)), kTwipsPerInch);
}

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

}  // namespace

DialogWindow::DialogWindow(const WindowTemplate& windowTemplate, EventSink& events, EventGate& gate)
    : events_(events), gate_(gate) {
    CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(windowTemplate.dialogId),
                       nullptr, procedure, reinterpret_cast<LPARAM>(this));
    chooseFonts(windowTemplate.headingId);
    addTooltips(window_, windowTemplate.tooltips);
    if (windowTemplate.focusId != 0) SetFocus(GetDlgItem(window_, windowTemplate.focusId));
}

DialogWindow::~DialogWindow() { unload(); }

void DialogWindow::chooseFonts(int headingId) {
    listFont_ = fixedPitchFont(window_);
    headingFont_ = headingFont(window_);
    for (HWND child = GetWindow(window_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        HFONT font = nullptr;
        if (classOf(child) == ControlClass::ListBox) font = listFont_.get();
        if (headingId != 0 && GetDlgCtrlID(child) == headingId) font = headingFont_.get();
        if (font) SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    }
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
    switch (message) {
        case WM_COMMAND:
            onCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
            return TRUE;
        case WM_NOTIFY: {
            const auto* header = reinterpret_cast<NMHDR*>(lParam);
            if (header->code != static_cast<UINT>(TCN_SELCHANGE)) return FALSE;
            gate_.deliver(events_, static_cast<int>(header->idFrom), Event::Click, window_);
            return TRUE;
        }
        case WM_CLOSE:
            gate_.deliver(events_, kTheWindow, Event::Close, window_);
            return TRUE;
        case WM_ENDSESSION:
            if (wParam) gate_.deliver(events_, kTheWindow, Event::Close, window_);
            return TRUE;
        case WM_SETCURSOR:
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
    if (!control) return;
    const auto event = eventOf(control, code);
    if (!event) return;
    if (classOf(control) == ControlClass::ComboBox && *event == Event::Click) {
        showChosenLine(control);
    }
    gate_.deliver(events_, id, *event, window_);
}

void DialogWindow::onKey(int id) {
    HWND focus = GetFocus();
    // Enter in a list is a double click on its line.
    if (id == kEnterKey && focus && classOf(focus) == ControlClass::ListBox) {
        gate_.deliver(events_, GetDlgCtrlID(focus), Event::DoubleClick, window_);
    } else {
        gate_.deliver(events_, id, Event::Click, window_);
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

POINT DialogWindow::restoredCorner() const {
    RECT rectangle{};
    GetWindowRect(window_, &rectangle);
    if (!IsIconic(window_) && !IsZoomed(window_)) return {rectangle.left, rectangle.top};
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    // A placement is relative to the work area.
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&placement.rcNormalPosition, MONITOR_DEFAULTTONEAREST),
                    &monitor);
    return {placement.rcNormalPosition.left + monitor.rcWork.left - monitor.rcMonitor.left,
            placement.rcNormalPosition.top + monitor.rcWork.top - monitor.rcMonitor.top};
}

int DialogWindow::top() const { return toTwips(window_, restoredCorner().y); }

int DialogWindow::left() const { return toTwips(window_, restoredCorner().x); }

void DialogWindow::moveTo(int top, int left) {
    SetWindowPos(window_, nullptr, toPixels(window_, left), toPixels(window_, top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogWindow::resize(int width, int height) {
    RECT before{};
    GetClientRect(window_, &before);
    SetWindowPos(window_, nullptr, 0, 0, toPixels(window_, width), toPixels(window_, height),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    stretchControls(window_, before);
}

void DialogWindow::show() {
    ShowWindow(window_, IsIconic(window_) ? SW_RESTORE : SW_SHOW);
    SetForegroundWindow(window_);
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
