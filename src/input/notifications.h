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
