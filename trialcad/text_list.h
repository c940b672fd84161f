#pragma once

#include <windows.h>

#include <string>

/// Creates a plain list box; its window's text is its name for screen readers.
HWND createTextList(HWND parent, const wchar_t* name);

/// Refills it with the parts of a text between semicolons.
void fillTextList(HWND list, const std::wstring& joined);

/// Appends a line, removes the oldest one beyond a thousand, and shows the newest.
void appendLine(HWND list, const std::wstring& line);

/// Scrolls down to the last line.
void showNewestLine(HWND list);
