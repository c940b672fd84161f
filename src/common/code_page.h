#pragma once

#include <string>
#include <string_view>

/// The text that bytes spell in the system's single-byte code page, which some editors write.
/// Each platform implements it.
std::wstring codePageText(std::string_view bytes);
