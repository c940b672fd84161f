#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// The CAD application's type code by a path's last three letters, in capitals only: 1 part,
/// 2 assembly, 3 drawing. Nothing for any other ending.
std::optional<std::int16_t> documentType(std::wstring_view path);
