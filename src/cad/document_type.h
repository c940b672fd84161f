#pragma once

#include <cstdint>
#include <string_view>

/// The CAD application's type code by a path's last three letters, in capitals only: 1 part,
/// 2 assembly, 3 drawing. Any other ending leaves the code as it was.
std::int16_t documentType(std::wstring_view path, std::int16_t previous);
