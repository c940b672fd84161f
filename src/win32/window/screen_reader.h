#pragma once

#include <windows.h>

#include <span>

#include "ports/window.h"

/// Tells screen readers that a window is a dialog, how its controls are called, and which label is
/// to be read out when it changes (0: none).
void tellScreenReaders(HWND window, std::span<const AccessibleName> names, int liveId);

/// That label has changed.
void announceChange(HWND label);
