#include "win32/window/dialog_window.h"

#include <algorithm>
#include <commctrl.h>
#include <uxtheme.h>

#include "win32/process/require.h"
#include "win32/window/focus.h"
#include "win32/window/hints.h"
#include "win32/window/own_windows.h"
#include "win32/window/system_menu.h"
#include "win32/window/win_controls.h"

namespace {

// No virtual-key code: those are the timers of held hot keys.
constexpr UINT_PTR kTimer = 0x100;

}  // namespace

void DeferredEvents::add(int controlId, Event event) {
    events_.emplace_back(controlId, event);
    SetTimer(window_, kTimer, USER_TIMER_MINIMUM, nullptr);
}

void DeferredEvents::drop(int controlId, Event event) {
    std::erase(events_, std::pair(controlId, event));
}

std::vector<std::pair<int, Event>> DeferredEvents::take() {
    KillTimer(window_, kTimer);
    return std::exchange(events_, {});
}

bool DeferredEvents::isDue(UINT_PTR timer) {
    return timer == kTimer && GetKeyState(VK_LBUTTON) >= 0;
}

namespace {

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

/// Tab pages are no windows of their own: on a window of another colour the tab strip's frame would
/// stand out. So the whole window takes the tab strip's colour.
void colourAsTabPages(HWND window) {
    if (!FindWindowExW(window, nullptr, WC_TABCONTROLW, nullptr)) return;
    static const auto enableTexture =
        systemFunction<decltype(EnableThemeDialogTexture)>(L"uxtheme", "EnableThemeDialogTexture");
    if (enableTexture) enableTexture(window, ETDT_ENABLETAB);
}

HWND makeDialog(int dialogId, DLGPROC procedure) {
    return require(
        CreateDialogW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogId), nullptr, procedure),
        L"une fenêtre");
}

/// Otherwise Windows would resize the window and its controls as well, and undo what we do. Windows
/// has the function since Windows 10 1703; Wine doesn't.
void leaveResolutionToUs(HWND window) {
    using SetBehavior = BOOL WINAPI(HWND, DIALOG_DPI_CHANGE_BEHAVIORS, DIALOG_DPI_CHANGE_BEHAVIORS);
    static const auto setBehavior =
        systemFunction<SetBehavior>(L"user32", "SetDialogDpiChangeBehavior");
    if (setBehavior) setBehavior(window, DDC_DISABLE_ALL, DDC_DISABLE_ALL);
}

}  // namespace

DialogWindow::DialogWindow(const WindowTemplate& windowTemplate, EventSink& events, EventGate& gate,
                           const std::function<void()>& help)
    : events_(events),
      gate_(gate),
      help_(help),
      focusId_(windowTemplate.focusId),
      liveId_(windowTemplate.liveId),
      menuItems_(windowTemplate.systemMenu),
      window_(makeDialog(windowTemplate.dialogId, procedure)),
      tips_(addTooltips(window_.get(), windowTemplate.tooltips)),
      place_(window_.get(), windowTemplate, tips_),
      deferred_(window_.get()),
      hotKeys_(windowTemplate.hotKeys),
      taskbarButton_(window_.get()),
      progress_(taskbarButton_) {
    noteUsed(window_.get());
    leaveResolutionToUs(window_.get());
    SetWindowLongPtrW(window_.get(), DWLP_USER, reinterpret_cast<LONG_PTR>(this));
    place_.takeTemplateSize();
    tellScreenReaders(window_.get(), windowTemplate.names, liveId_);
    shortcuts_.emplace(window_.get(), windowTemplate.dialogId);
    colourAsTabPages(window_.get());
    addToSystemMenu(window_.get(), menuItems_);
    DragAcceptFiles(window_.get(), windowTemplate.takesDrops);
}

DialogWindow::~DialogWindow() { destroy(); }

bool DialogWindow::isShown() const { return IsWindowVisible(window_.get()); }

bool DialogWindow::canUse(int controlId) const {
    HWND control = item(controlId);
    // The menu's separators have the window's own number, and are greyed.
    if (!control) return controlId == kTheWindow || !isGreyed(window_.get(), controlId);
    return IsWindowVisible(control) && IsWindowEnabled(control);
}

DialogWindow* DialogWindow::ofEvents(const EventSink& events) {
    for (HWND window : ownWindows()) {
        auto* self = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
        if (self && &self->events_ == &events) return self;
    }
    return nullptr;
}

// Buttons start commands: a search is replaced by the controls that say what to look for and where.
bool DialogWindow::asksForSearch(HWND part) const {
    HWND control = part ? controlHolding(window_.get(), part) : nullptr;
    if (!control || classOf(control) == ControlClass::Button) return false;
    constexpr Event kDeeds[] = {Event::Click, Event::DoubleClick, Event::Change};
    return std::ranges::any_of(kDeeds, [&](Event event) {
        return events_.duringSearch(GetDlgCtrlID(control), event) != DuringSearch::Drop;
    });
}

template <class Kind>
Kind& DialogWindow::find(int id) {
    auto& entry = controls_[{id, typeid(Kind)}];
    if (!entry) entry = std::make_unique<Kind>(item(id));
    return static_cast<Kind&>(*entry);
}

Control& DialogWindow::control(int id) {
    if (id == liveId_ && id != 0) return find<WinLiveLabel>(id);
    return find<WinControl>(id);
}
CheckBox& DialogWindow::checkBox(int id) { return find<WinCheckBox>(id); }
ListBox& DialogWindow::listBox(int id) { return find<WinListBox>(id); }
ComboBox& DialogWindow::comboBox(int id) { return find<WinComboBox>(id); }
TabStrip& DialogWindow::tabStrip(int id) { return find<WinTabStrip>(id); }
ProgressBar& DialogWindow::progressBar(int id) { return find<WinProgressBar>(id); }

void DialogWindow::show() {
    HWND window = window_.get();
    const bool wasVisible = IsWindowVisible(window);
    judge().windowShown();
    noteUsed(window);
    ShowWindow(window, IsIconic(window) ? SW_RESTORE : SW_SHOW);
    takeForeground(window);
    if (!wasVisible) {
        // Windows may tell a window only now which monitor it is on.
        place_.moveIntoSight();
        focusOn(window, focusId_ != 0 ? item(focusId_) : firstControl(window));
    }
    // The splash is shown before the program serves any messages.
    UpdateWindow(window);
}

void DialogWindow::showAside() {
    judge().windowShown();
    place_.moveIntoSight();
    ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
    UpdateWindow(window_.get());
}

void DialogWindow::hide() {
    keepForeground(window_.get());
    ShowWindow(window_.get(), SW_HIDE);
}

void DialogWindow::unload() {
    keepForeground(window_.get());
    destroy();
}

void DialogWindow::destroy() {
    if (!window_) return;
    SetWindowLongPtrW(window_.get(), DWLP_USER, 0);
    gate_.forget(*this);
    noteGone(window_.get());
    shortcuts_.reset();
    hotKeys_.release();
    window_.reset();
}

DialogFactory::DialogFactory(EventGate& gate, std::function<void()> help)
    : gate_(gate), help_(std::move(help)) {
    registerWindowClass();
}

std::unique_ptr<Window> DialogFactory::create(const WindowTemplate& windowTemplate,
                                              EventSink& events) {
    return std::make_unique<DialogWindow>(windowTemplate, events, gate_, help_);
}
