#pragma once

#include "ports/power.h"

class WinPower : public Power {
 public:
    /// Holds for the thread that asks for it, and while that lives.
    void keepAwake(bool awake) override;
};
