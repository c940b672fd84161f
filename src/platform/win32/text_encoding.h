#pragma once

#include <string>
#include <string_view>

/// The text of a file's bytes: UTF-8 when they are valid UTF-8 (a byte-order mark is dropped),
/// else the system's single-byte code page.
std::wstring decodeText(std::string_view bytes);

/// UTF-8 without byte-order mark. Raises 5 for text that is not valid UTF-16.
std::string encodeText(std::wstring_view text);
