#pragma once

#include <optional>
#include <string_view>

#include "ports/window.h"

/// The kinds of controls, as far as they differ in what they tell their window.
enum class ControlClass { Button, ListBox, ComboBox, Edit, TabStrip, Other };

/// The kind of the controls of a Windows class, whatever its case.
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

/// The event that a control's notification stands for, if a window can bind it. Losing the focus
/// counts only when it stays in the window: switching to another program doesn't leave a field.
/// When a line of a drop-down counts as chosen is known to DropDown.
std::optional<Event> eventOf(ControlClass control, unsigned code, bool focusStaysInWindow);

/// What a drop-down box tells its window about its list, and what that comes to. While the list is
/// down, each arrow key is a change of the selection: what is chosen is known when it closes.
/// Windows sends a change before or after the close, as it happens (CBN_CLOSEUP, remarks).
class DropDown {
 public:
    enum class Step {
        Nothing,
        Remember,  ///< what is chosen now: the list goes down
        Act,       ///< another line was chosen
        ActLater,  ///< the same, unless the notification that says so follows by itself
        GoBack     ///< to what was remembered: the user gave up
    };

    /// What a notification comes to; `isDown`: the list is still to be seen.
    Step notified(unsigned code, bool isDown);

 private:
    Step selectionChanged(bool isDown);
    Step closedUp() const;

    bool changed_ = false;
    bool cancelled_ = false;
};
