#pragma once

#include <windows.h>

#include <span>

#include "platform/window.h"

/// Gives the controls of a window their tooltips, which live as long as the window.
void addTooltips(HWND window, std::span<const Tooltip> tooltips);
