#pragma once

#include <windows.h>

#include <span>

#include "ports/window.h"

/// Gives the controls of a window their tooltips, which live as long as the window. Gives their
/// window, null when there is none, to which the controls' mouse messages are to be relayed: a
/// control that was subclassed for that would take every message many times slower.
HWND addTooltips(HWND window, std::span<const Tooltip> tooltips);

/// Gives tooltips (none, when null) the font and the width that suit a resolution.
void fitTooltips(HWND tips, HFONT font, int dpi);

/// Tells the tooltips of a mouse message that a control is about to get.
void relayToTooltips(HWND tips, HWND control, UINT mouseMessage);
