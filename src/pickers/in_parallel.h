#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "common/runtime_error.h"

struct SearchServices;

/// Calls `job` with each number below `count`, several at a time, by workers, while the window is
/// served; without workers one after the other. Raises what a job raised, and what the watch
/// raises. False when the watch ended: jobs that hang are abandoned, so each owns all that it
/// works on.
[[nodiscard]] bool inParallel(const SearchServices& services, std::size_t count,
                              std::function<void(std::size_t number)> job);

/// Does something that may raise; gives what it raised.
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
