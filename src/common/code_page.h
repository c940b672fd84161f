#pragma once

#include <string>
#include <string_view>

/// The text that bytes spell in the system's single-byte code page, as some editors and scripts write it.
/// Each platform implements it.
std::wstring codePageText(std::string_view bytes);
