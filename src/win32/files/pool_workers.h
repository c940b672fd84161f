#pragma once

#include "ports/workers.h"

/// The threads of the system's own pool: there are none while nothing is to be done.
class PoolWorkers : public Workers {
 public:
    bool start(std::function<void()> job) override;
};
