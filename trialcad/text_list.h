#pragma once

#include <windows.h>

#include <string>

/// Creates a plain list box, its name for screen readers being the window's text.
HWND createTextList(HWND parent, const wchar_t* name);

/// Refills it with the parts of a text between semicolons.
void fillTextList(HWND list, const std::wstring& joined);

/// Appends a line, drops the oldest beyond a thousand and shows the newest.
void appendLine(HWND list, const std::wstring& line);

/// Scrolls down to the last line.
void showNewestLine(HWND list);
