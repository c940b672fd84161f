#pragma once

#include <windows.h>

#include <span>

#include "platform/window.h"

/// Tells screen readers the names of controls; they live as long as the controls.
void nameControls(HWND window, std::span<const AccessibleName> names);
