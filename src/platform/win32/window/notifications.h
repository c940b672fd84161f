#pragma once

#include <windows.h>

#include <optional>

#include "platform/events.h"

/// The event that a control's notification stands for, if a form can bind it.
std::optional<Event> eventOf(HWND control, WORD code);

enum class ControlClass { Button, ListBox, ComboBox, Edit, TabStrip, Other };

ControlClass classOf(HWND control);
