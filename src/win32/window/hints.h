#pragma once

#include <windows.h>

#include <span>

#include "ports/window.h"

/// Adds tooltips to the controls of a window; they live as long as it does. Returns the tooltips'
/// own window, null when there is none. The controls' mouse messages are to be relayed to it:
/// subclassing the controls instead would slow down each of their messages many times.
HWND addTooltips(HWND window, std::span<const Tooltip> tooltips);

/// Gives tooltips (none, when null) the font and the width that suit a resolution.
void fitTooltips(HWND tips, HFONT font, int dpi);

/// Tells the tooltips about a mouse message that a control is about to get.
void relayToTooltips(HWND tips, HWND control, UINT mouseMessage);

/// Tells screen readers that a window is a dialog, what its controls are called, and which label to
/// read out when it changes (0: none).
void tellScreenReaders(HWND window, std::span<const AccessibleName> names, int liveId);

/// Tells them that this label has changed.
void announceChange(HWND label);
