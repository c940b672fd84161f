#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "ports/area.h"
#include "ports/controls.h"

/// What a user does to a control. `Close` is the window's frame asking to be closed.
/// `Enter` is the key, in a text box. `Drop`: files were dropped on the window.
enum class Event { Click, DoubleClick, Change, Validate, Enter, Close, Drop };

/// The id under which a window's own events are raised.
inline constexpr int kTheWindow = 0;

/// The ids under which Enter and Escape are raised, as clicks, when no control takes them.
inline constexpr int kEnterKey = 1;
inline constexpr int kEscapeKey = 2;

/// What becomes of an event that comes while its window searches. Restart: it asks for another
/// search, which begins at once; Reopen: in another directory, so that the one that is being opened
/// is in vain, too.
enum class DuringSearch { Drop, Restart, Reopen };

/// Who handles the events of a window.
class EventSink {
 public:
    virtual ~EventSink() = default;
    virtual void raise(int controlId, Event event) = 0;
    /// Whether the second press of a double click counts like the first one.
    virtual bool takesSecondPress(int /*controlId*/, Event /*event*/) const { return true; }
    /// What it asks of the search that its window makes.
    virtual DuringSearch duringSearch(int /*controlId*/, Event /*event*/) const {
        return DuringSearch::Drop;
    }
};

/// Which presses start a command. Single: the second press of a double click does not, for what it
/// does can't be taken back.
enum class Presses { All, Single };

/// One line of a form's table of handlers.
template <class Form>
struct Binding {
    int controlId;
    Event event;
    void (Form::*handler)();
    Presses presses = Presses::All;
    DuringSearch duringSearch = DuringSearch::Drop;
};

/// A form's line for an event, null when its table has none.
template <class Form>
const Binding<Form>* findBinding(std::span<const Binding<Form>> bindings, int controlId,
                                 Event event) {
    for (const auto& binding : bindings) {
        if (binding.controlId == controlId && binding.event == event) return &binding;
    }
    return nullptr;
}

/// What is to be seen to, where nobody looks at the window.
enum class Alert { None, Warning, Refusal };

/// A window of the program. Places are pixels of the virtual screen.
class Window {
 public:
    virtual ~Window() = default;

    // The controls, by the ids of the form's *_ids.h.
    virtual Control& control(int id) = 0;
    virtual CheckBox& checkBox(int id) = 0;
    virtual ListBox& listBox(int id) = 0;
    virtual ComboBox& comboBox(int id) = 0;
    virtual TabStrip& tabStrip(int id) = 0;
    virtual ProgressBar& progressBar(int id) = 0;

    /// Where it stands while it is neither minimised nor maximised.
    virtual Area place() const = 0;
    /// The controls grow and shrink with it. On a monitor of another resolution it has another
    /// size afterwards.
    virtual void moveTo(const Area& place) = 0;
    /// Pixels to an inch, where it stands.
    virtual int dpi() const = 0;
    /// The monitor it stands on, or next to, without the taskbar.
    virtual Area workArea() const = 0;
    /// How far the work has come, for the taskbar to show: steps done of all. 0 of 0: none.
    virtual void showProgress(int done, int total) = 0;
    /// The colour of that progress: yellow for a warning, red for a refusal.
    virtual void showAlert(Alert alert) = 0;
    /// The check mark of an item of the system menu.
    virtual void setMenuItemChecked(int itemId, bool checked) = 0;
    /// Whether an item of the system menu can be chosen; at first all can.
    virtual void setMenuItemEnabled(int itemId, bool enabled) = 0;
    /// Above the windows of all programs, or among them.
    virtual void setTopmost(bool topmost) = 0;
    /// From now on the template's hot keys act, whichever program has the keyboard. Gives the names
    /// of those that another program has taken: then none acts.
    virtual std::vector<std::wstring> takeHotKeys() = 0;
    virtual void releaseHotKeys() = 0;
    /// The full paths of the files and directories that were dropped on it last, as they came: what
    /// Event::Drop is about.
    virtual std::vector<std::wstring> droppedPaths() const = 0;
    virtual void show() = 0;
    /// Shows it and leaves the keyboard and the foreground to whoever has them.
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

/// The name by which a screen reader announces a control that shows none, or one that is hard to
/// understand when it is heard.
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

/// An item that a window adds to its system menu, below a separator, and that it also shows in a
/// shortcut menu of its own. Chosen, it is clicked. The four lowest bits of its id are 0 (the
/// WM_SYSCOMMAND message).
struct SystemMenuItem {
    int id;
    const wchar_t* text;  ///< behind a tab, the name of the key that chooses it
    bool startsGroup =
        false;  ///< a separator stands above it; above the first item one always does
};

/// A key of the digit row that acts with Ctrl and Shift as a button of the window does, whichever
/// program has the keyboard.
struct HotKey {
    int controlId;
    int place;  ///< in the row, from 1, whatever the keyboard writes on it
    const wchar_t* name;
};

/// What a window is made from: a dialog resource, whose id and texts are the form's own, with the
/// accelerator resource of the same id as its shortcuts.
struct WindowTemplate {
    int dialogId;
    std::span<const Tooltip> tooltips = {};
    int headingId = 0;     ///< the label shown as the window's heading
    int focusId = 0;       ///< the control that has the focus first; 0: the first one
    int fixedPitchId = 0;  ///< the list whose lines are aligned by their number of characters
    int liveId = 0;        ///< the label that a screen reader reads out whenever it changes
    std::span<const Anchor> anchors = {};
    std::span<const AccessibleName> names = {};
    /// How much smaller than there it can be made, in dialog units.
    Size shrinks = {};
    std::span<const SystemMenuItem> systemMenu = {};
    std::span<const HotKey> hotKeys = {};
    bool takesDrops = false;  ///< of files and directories
};

class WindowFactory {
 public:
    virtual ~WindowFactory() = default;

    /// A new window, not yet shown; its events go to `events`, which must outlive it.
    virtual std::unique_ptr<Window> create(const WindowTemplate& windowTemplate,
                                           EventSink& events) = 0;
};
