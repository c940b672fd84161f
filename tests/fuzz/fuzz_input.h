#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "common/runtime_error.h"

/// The text of a file in a single-byte code page: each byte a character.
inline std::wstring textOfBytes(const std::uint8_t* data, std::size_t size) {
    return {data, data + size};
}

/// Ends the run with a report unless `condition` holds.
inline void require(bool condition) {
    if (!condition) std::abort();
}

/// Runs an action; gives the number of the run-time error that it raises, 0 for none.
template <class Action>
int errorOf(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}
