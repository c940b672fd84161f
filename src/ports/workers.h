#pragma once

#include <functional>

/// Threads beside the main one, for what would make it wait.
class Workers {
 public:
    virtual ~Workers() = default;

    /// Runs a job on a thread of its own, sooner or later. It owns all that it works on, for nobody
    /// waits for its end, and raises nothing. False, and the job is not run, when there is no
    /// thread to be had. Called by any thread.
    virtual bool start(std::function<void()> job) = 0;
};

/// For callers that do all their work themselves.
class NoWorkers : public Workers {
 public:
    bool start(std::function<void()>) override { return false; }
};
