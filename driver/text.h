#pragma once

#include <string>
#include <string_view>

namespace driver {

// The scenarios use UTF-8, Windows UTF-16.
std::wstring wide(std::string_view utf8);
std::string utf8(std::wstring_view wide);

}  // namespace driver
