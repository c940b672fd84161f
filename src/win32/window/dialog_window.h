#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <shellapi.h>
#include <span>
#include <string>
#include <typeindex>
#include <utility>
#include <vector>

#include "input/event_gate.h"
#include "ports/window.h"
#include "win32/window/win_controls.h"
#include "win32/window/win_desktop.h"
#include "win32/window/window_keys.h"
#include "win32/window/window_place.h"

/// Events that a window raises as soon as the current message is done with, before any other event.
class DeferredEvents {
 public:
    explicit DeferredEvents(HWND window) : window_(window) {}

    void add(int controlId, Event event);
    void drop(int controlId, Event event);
    bool empty() const { return events_.empty(); }
    /// Hands them over to be raised.
    std::vector<std::pair<int, Event>> take();

    /// Whether a timer of the window is theirs and their time has come. They wait while the mouse
    /// button is down: when a press takes the focus elsewhere, its end raises them first, as part
    /// of that press.
    static bool isDue(UINT_PTR timer);

 private:
    HWND window_;
    std::vector<std::pair<int, Event>> events_;
};

/// A window of the program, made from a dialog resource. One procedure serves all of them: it
/// turns notifications into events and sends those through the gate.
class DialogWindow : public Window, private EventSource {
 public:
    DialogWindow(const WindowTemplate& windowTemplate, EventSink& events, EventGate& gate,
                 const std::function<void()>& help);
    ~DialogWindow() override;
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    Control& control(int id) override;
    CheckBox& checkBox(int id) override;
    ListBox& listBox(int id) override;
    ComboBox& comboBox(int id) override;
    TabStrip& tabStrip(int id) override;
    ProgressBar& progressBar(int id) override;

    Area place() const override { return place_.place(); }
    void moveTo(const Area& place) override { place_.moveTo(place); }
    int dpi() const override { return place_.dpi(); }
    Area workArea() const override { return place_.workArea(); }
    void showProgress(int done, int total) override { progress_.set(done, total); }
    void showAlert(Alert alert) override { progress_.set(alert); }
    void setMenuItemChecked(int itemId, bool checked) override;
    void setMenuItemEnabled(int itemId, bool enabled) override;
    void setTopmost(bool topmost) override;
    std::vector<std::wstring> takeHotKeys() override;
    void releaseHotKeys() override;
    std::vector<std::wstring> droppedPaths() const override { return dropped_; }
    void show() override;
    void showAside() override;
    void hide() override;
    void unload() override;

    /// The window that sends its events there; null when none does.
    static DialogWindow* ofEvents(const EventSink& events);
    HWND handle() const { return window_.get(); }
    /// Whether a control, or a part of one, asks for a newer search while the window searches.
    bool asksForSearch(HWND part) const;

 private:
    bool isShown() const override;
    bool canUse(int controlId) const override;

    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept;
    INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
    void onCommand(int id, WORD code, HWND control);
    INT_PTR onNotify(const NMHDR& header);
    INT_PTR onSetCursor(HWND control, int place, WORD mouseMessage);
    INT_PTR onMouseActivate();
    void onComboBox(int id, WORD code, HWND comboBox);
    void onKey(int id);
    void onShortcut(HWND control);
    void raise(int id, Event event);
    void serveDeferred();
    bool serveFirst(int id);
    INT_PTR onSystemCommand(WPARAM command);
    INT_PTR onContextMenu(HWND control, LPARAM place);
    bool isUnmeantMenu() const;
    void onHotKey(int id, UINT key);
    void onDrop(HDROP files);
    void onHelp();
    /// Presses a button of its own while another program may have the keyboard.
    void pressFromAfar(int id);
    bool isAsideMeant(bool takesSecond) const;
    bool isUnmeantCommand(int id, Event event, Deed::Kind kind = Deed::Kind::Command) const;
    Judge& judge() const { return gate_.judge(); }
    void destroy();
    HWND item(int id) const { return GetDlgItem(window_.get(), id); }
    template <class Kind>
    Kind& find(int id);

    EventSink& events_;
    EventGate& gate_;
    const std::function<void()>& help_;
    const int focusId_;
    const int liveId_;
    const std::span<const SystemMenuItem> menuItems_;
    UniqueWindow window_;
    std::optional<WindowShortcuts> shortcuts_;
    HWND tips_;
    WindowPlace place_;
    /// By id and kind, since any control can also be asked for as a plain Control.
    std::map<std::pair<int, std::type_index>, std::unique_ptr<Control>> controls_;
    ComboLists comboLists_;
    DeferredEvents deferred_;
    WinHotKeys hotKeys_;
    std::vector<std::wstring> dropped_;
    WinTaskbarButton taskbarButton_;
    TaskbarProgress progress_;
};

/// Makes the program's windows.
class DialogFactory : public WindowFactory {
 public:
    /// `help`: what F1 does in every window.
    explicit DialogFactory(
        EventGate& gate, std::function<void()> help = [] {});
    std::unique_ptr<Window> create(const WindowTemplate& windowTemplate,
                                   EventSink& events) override;

 private:
    EventGate& gate_;
    std::function<void()> help_;
};
