#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "common/runtime_error.h"

struct SearchServices;

/// How many workers keep a server busy that takes some milliseconds for each answer.
inline constexpr int kMostAtOnce = 8;

/// Has workers call `job` with each number below `count`, several at a time, while the window is
/// served; without workers calls it itself, one number after the other. Raises what a job raises,
/// and what the watch raises. False when the watch ends it: jobs that hang are abandoned, so each
/// owns all that it works on.
[[nodiscard]] bool inParallel(const SearchServices& services, std::size_t count,
                              std::function<void(std::size_t number)> job);

/// Does something that may raise; returns what it raised.
template <class Action>
std::optional<RuntimeError> errorOf(const Action& action) noexcept {
    try {
        action();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return error;
    } catch (...) {
        return errors::outOfMemory();
    }
}
