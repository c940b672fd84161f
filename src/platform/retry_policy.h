#pragma once

#include <optional>

/// When a call that a busy application refused is tried again. A refused call never ran, so it
/// can be repeated safely: at once, then at growing intervals up to a second; after ten seconds
/// the user is asked.
class RetryPolicy {
 public:
    /// What to do after a refusal, `elapsed` milliseconds after the first or after the user
    /// chose to go on: how many milliseconds to wait, or nothing when the user is to be asked.
    std::optional<unsigned> next(unsigned long long elapsed);

    /// The user chose to go on: intervals and patience start anew.
    void restart() { wait_ = 0; }

 private:
    unsigned wait_ = 0;
};
