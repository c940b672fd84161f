#pragma once

#include <string_view>

/// What --busy calls the name look-up itself.
inline constexpr std::wstring_view kNameLookUp = L"GetIDsOfNames";

/// Whether the application object or the documents have a method or property of that name.
bool isKnownMethod(std::wstring_view name);
