#pragma once

#include <windows.h>

#include <shellapi.h>
#include <string>
#include <vector>

/// The full paths of what was dropped, of any length.
std::vector<std::wstring> pathsOf(HDROP files);
