#pragma once

#include <optional>

/// When a call that a busy application refused is tried again. A refused call never ran, so it
/// can be repeated safely: at once, then at growing intervals up to a second; after ten seconds
/// the user is asked.
/// Gives what to do `elapsed` milliseconds after the first refusal, or after the user chose to go
/// on: how many milliseconds to wait, or nothing when the user is to be asked.
std::optional<unsigned> waitBeforeRetry(unsigned long long elapsed);
