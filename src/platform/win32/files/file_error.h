#pragma once

#include <windows.h>

#include <string>

#include "common/runtime_error.h"

/// The run-time error for a Windows error code met on a path.
RuntimeError fileError(DWORD code, const std::wstring& path);

/// The same for a directory that is to be read: a refused access is 70.
RuntimeError directoryError(DWORD code, const std::wstring& path);
