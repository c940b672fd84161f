#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <typeindex>
#include <utility>

#include "platform/win32/window/taskbar_progress.h"
#include "platform/win32/window/window_fonts.h"
#include "platform/win32/window/window_icons.h"
#include "platform/win32/window/window_layout.h"
#include "platform/window.h"

class EventGate;

/// A window of the program, made from a dialog resource. One procedure serves all of them: it
/// turns notifications into events and sends those through the gate.
class DialogWindow : public Window {
 public:
    DialogWindow(const WindowTemplate& windowTemplate, EventSink& events, EventGate& gate);
    ~DialogWindow() override;
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    Control& control(int id) override;
    CheckBox& checkBox(int id) override;
    ListBox& listBox(int id) override;
    ComboBox& comboBox(int id) override;
    TabStrip& tabStrip(int id) override;

    int top() const override;
    int left() const override;
    void moveTo(int top, int left) override;
    void resize(int width, int height) override;
    void showProgress(int done, int total) override;
    void show() override;
    void hide() override;
    void unload() override;

 private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
    void onCommand(int id, WORD code, HWND control);
    void raise(int id, Event event);
    void onKey(int id);
    void onShortcut(HWND control);
    void changeResolution(const RECT& suggested);
    void chooseFonts();
    void takeTemplateSize();
    POINT restoredCorner() const;
    void placeCorner(int top, int left) const;
    template <class Kind>
    Kind& find(int id);

    HWND window_ = nullptr;
    HWND tips_ = nullptr;
    EventSink& events_;
    EventGate& gate_;
    /// By id and kind: any control may also be asked for as a plain one.
    std::map<std::pair<int, std::type_index>, std::unique_ptr<Control>> controls_;
    const int headingId_;
    const int focusId_;
    const int fixedPitchId_;
    std::optional<WindowFonts> fonts_;
    std::optional<WindowIcons> icons_;
    std::optional<WindowLayout> layout_;
    TaskbarProgress progress_;
};

/// Makes the program's windows.
class DialogFactory : public WindowFactory {
 public:
    explicit DialogFactory(EventGate& gate);
    std::unique_ptr<Window> create(const WindowTemplate& windowTemplate,
                                   EventSink& events) override;

 private:
    EventGate& gate_;
};
