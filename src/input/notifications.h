#pragma once

#include <optional>
#include <string_view>

#include "ports/window.h"

/// The kinds of controls, as far as their notifications differ.
enum class ControlClass { Button, ListBox, ComboBox, Edit, TabStrip, Other };

/// The kind of control of a Windows class, in any case.
ControlClass controlClass(std::wstring_view className);

/// Windows' numbers of the notifications that stand for an event (winuser.h).
namespace notification {
inline constexpr unsigned kButtonClicked = 0;
inline constexpr unsigned kListSelectionChanged = 1;
inline constexpr unsigned kListDoubleClicked = 2;
inline constexpr unsigned kComboSelectionChanged = 1;
inline constexpr unsigned kComboFocusLost = 4;
inline constexpr unsigned kComboTextEdited = 5;
inline constexpr unsigned kComboListShown = 7;
inline constexpr unsigned kComboListClosed = 8;
inline constexpr unsigned kComboChoiceCancelled = 10;
}  // namespace notification

/// The event that a control's notification stands for, if windows can bind it. A control is left
/// only when the focus stays in the window: switching to another program doesn't count. DropDown
/// knows when a line of a drop-down counts as chosen.
std::optional<Event> eventOf(ControlClass control, unsigned code, bool focusStaysInWindow);

/// Interprets what a drop-down box tells its window about its list. While the list is down, each
/// arrow key changes the selection, so that the choice is known only when it closes. Windows may
/// send a change before or after that (CBN_CLOSEUP, remarks).
class DropDown {
 public:
    enum class Step {
        Nothing,
        Remember,  ///< the list opens: remember the choice so far
        Act,       ///< another line was chosen
        ActLater,  ///< the same, unless a notification follows that says so
        GoBack     ///< the user gave up: restore what was remembered
    };

    /// What to do about a notification; `isDown`: the list is still open.
    Step notified(unsigned code, bool isDown);

 private:
    Step selectionChanged(bool isDown);
    Step closedUp() const;

    bool changed_ = false;
    bool cancelled_ = false;
};
