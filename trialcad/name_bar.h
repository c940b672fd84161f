#pragma once

#include <windows.h>

#include <string>

#include "win32/window/window_look.h"

/// Draws the bar on top of the window that says that this is no real session.
void drawNameBar(HDC context, const RECT& bar, const WindowFonts& fonts, UINT dpi,
                 const std::wstring& facts);
