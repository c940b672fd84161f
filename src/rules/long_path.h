#pragma once

#include <string>

/// A full path in the form that Windows takes at any length and with any name (the \\?\ prefix).
/// Doubled backslashes are made single, which that form requires. Other paths stay as they are.
std::wstring longPath(const std::wstring& path);
