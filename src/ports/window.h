#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "ports/area.h"
#include "ports/controls.h"

/// What a user does to a control. `Close`: the window is closed by its frame. `Enter`: the key is
/// pressed in a text box. `Drop`: files are dropped on the window.
enum class Event { Click, DoubleClick, Change, Validate, Enter, Close, Drop };

/// The id under which a window's own events are raised.
inline constexpr int kTheWindow = 0;

/// The ids under which Enter and Escape are raised, as clicks, when no control takes them.
inline constexpr int kEnterKey = 1;
inline constexpr int kEscapeKey = 2;

/// What becomes of an event that comes while its window searches. Restart: it asks for a newer
/// search, which begins at once. Reopen: for one in another directory, so that opening this one is
/// in vain, too.
enum class DuringSearch { Drop, Restart, Reopen };

/// Who handles the events of a window.
class EventSink {
 public:
    virtual ~EventSink() = default;
    virtual void raise(int controlId, Event event) = 0;
    /// Whether the second press of a double click counts like the first one.
    virtual bool takesSecondPress(int /*controlId*/, Event /*event*/) const { return true; }
    /// What an event asks of the search that its window is making.
    virtual DuringSearch duringSearch(int /*controlId*/, Event /*event*/) const {
        return DuringSearch::Drop;
    }
};

/// Which presses start a command. Single: the second press of a double click does not, since the
/// command can't be undone.
enum class Presses { All, Single };

/// One line of a window's table of handlers.
template <class Form>
struct Binding {
    int controlId;
    Event event;
    void (Form::*handler)();
    Presses presses = Presses::All;
    DuringSearch duringSearch = DuringSearch::Drop;
};

/// A window's line for an event, null when its table has none.
template <class Form>
const Binding<Form>* findBinding(std::span<const Binding<Form>> bindings, int controlId,
                                 Event event) {
    for (const auto& binding : bindings) {
        if (binding.controlId == controlId && binding.event == event) return &binding;
    }
    return nullptr;
}

/// What needs attention, shown where the user sees it without looking at the window.
enum class Alert { None, Warning, Refusal };

/// A window of the program. Places are pixels of the virtual screen.
class Window {
 public:
    virtual ~Window() = default;

    // The controls, by the ids of the window's *_ids.h.
    virtual Control& control(int id) = 0;
    virtual CheckBox& checkBox(int id) = 0;
    virtual ListBox& listBox(int id) = 0;
    virtual ComboBox& comboBox(int id) = 0;
    virtual TabStrip& tabStrip(int id) = 0;
    virtual ProgressBar& progressBar(int id) = 0;

    /// Where the window is when it is neither minimised nor maximised.
    virtual Area place() const = 0;
    /// The controls grow and shrink with the window. On a monitor of another resolution it gets
    /// another size.
    virtual void moveTo(const Area& place) = 0;
    /// Pixels to an inch on its monitor.
    virtual int dpi() const = 0;
    /// The monitor that it is on or nearest to, without the taskbar.
    virtual Area workArea() const = 0;
    /// Shows on the taskbar how far the work has come: steps done of all; 0 of 0 for no progress.
    virtual void showProgress(int done, int total) = 0;
    /// The colour of that progress: yellow for a warning, red for a refusal.
    virtual void showAlert(Alert alert) = 0;
    /// Checks an item of the system menu, or unchecks it.
    virtual void setMenuItemChecked(int itemId, bool checked) = 0;
    /// Whether an item of the system menu can be chosen. At first all can.
    virtual void setMenuItemEnabled(int itemId, bool enabled) = 0;
    /// Puts the window above those of all programs, or among them again.
    virtual void setTopmost(bool topmost) = 0;
    /// Activates the template's hot keys, whichever program has the keyboard. Returns the names of
    /// those that another program has taken: then none is active.
    virtual std::vector<std::wstring> takeHotKeys() = 0;
    virtual void releaseHotKeys() = 0;
    /// The full paths of the files and directories that were dropped last, in order: what
    /// Event::Drop is about.
    virtual std::vector<std::wstring> droppedPaths() const = 0;
    virtual void show() = 0;
    /// Shows the window without activating it.
    virtual void showAside() = 0;
    virtual void hide() = 0;
    /// Closes the window for good: its controls are gone.
    virtual void unload() = 0;
};

/// The hint shown while the pointer rests on a control.
struct Tooltip {
    int controlId;
    const wchar_t* text;
};

/// The name by which a screen reader announces a control without a caption, or with one that is
/// hard to understand when heard.
struct AccessibleName {
    int controlId;
    const wchar_t* text;
};

/// What a control does, in one direction, when its window is larger than its template.
enum class Growth { Stay, Move, Stretch };

/// How a control follows the edges of its window. One without an anchor stays where it is.
struct Anchor {
    int controlId;
    Growth across;
    Growth down;
};

/// An item that a window adds to its system menu, below a separator, and shows in a shortcut menu
/// as well. Choosing it raises a click. The four lowest bits of its id are 0 (the WM_SYSCOMMAND
/// message).
struct SystemMenuItem {
    int id;
    const wchar_t* text;  ///< after a tab, the name of the key that chooses it
    /// A separator is above it, as above the first item in any case.
    bool startsGroup = false;
};

/// A key of the digit row that, with Ctrl and Shift, presses a button of the window, whichever
/// program has the keyboard.
struct HotKey {
    int controlId;
    int place;  ///< in the row, from 1, whatever sign the key has
    const wchar_t* name;
};

/// What a window is made from: a dialog resource and, with the same id, the accelerator resource of
/// its shortcuts; and what those can't say.
struct WindowTemplate {
    int dialogId;
    std::span<const Tooltip> tooltips = {};
    int headingId = 0;     ///< the label shown as the window's heading
    int focusId = 0;       ///< the control that has the focus at first; 0: the first one
    int fixedPitchId = 0;  ///< the list whose columns are aligned by blanks
    int liveId = 0;        ///< the label that a screen reader reads out whenever it changes
    std::span<const Anchor> anchors = {};
    std::span<const AccessibleName> names = {};
    /// How much smaller than the template the window can be made, in dialog units.
    Size shrinks = {};
    std::span<const SystemMenuItem> systemMenu = {};
    std::span<const HotKey> hotKeys = {};
    bool takesDrops = false;  ///< files and directories can be dropped on the window
};

class WindowFactory {
 public:
    virtual ~WindowFactory() = default;

    /// A new window, not yet shown; its events go to `events`, which must outlive it.
    virtual std::unique_ptr<Window> create(const WindowTemplate& windowTemplate,
                                           EventSink& events) = 0;
};
