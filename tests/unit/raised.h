#pragma once

#include "common/runtime_error.h"

/// The run-time error that an action raises, number 0 when it raises none.
template <class Action>
RuntimeError raisedError(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error;
    }
    return {};
}

template <class Action>
int raised(const Action& action) {
    return raisedError(action).number;
}
