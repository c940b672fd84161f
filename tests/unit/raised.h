#pragma once

#include "common/runtime_error.h"

/// The number of the run-time error that an action raises, 0 when it raises none.
template <class Action>
int raised(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}
