#pragma once

#include <windows.h>

#include "ports/area.h"

// Windows' rectangles and our areas.

inline Area areaOfRect(const RECT& area) { return {area.left, area.top, area.right, area.bottom}; }

inline RECT rectOf(const Area& area) { return {area.left, area.top, area.right, area.bottom}; }

inline int dpiOf(HWND window) { return static_cast<int>(GetDpiForWindow(window)); }
