#pragma once

#include <span>

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
