#pragma once

#include "ports/machine.h"

/// Notes whether the machine is held awake, and how often it was.
struct FakePower : Power {
    bool awake = false;
    int timesHeld = 0;

    void keepAwake(bool value) override {
        awake = value;
        timesHeld += value ? 1 : 0;
    }
};
