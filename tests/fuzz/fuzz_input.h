#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "unit/raised.h"

/// The text of a file in a single-byte code page: each byte a character.
inline std::wstring textOfBytes(const std::uint8_t* data, std::size_t size) {
    return {data, data + size};
}

/// Ends the run with a report unless `condition` holds.
inline void require(bool condition) {
    if (!condition) std::abort();
}
