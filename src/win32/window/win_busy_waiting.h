#pragma once

#include "rules/patience.h"

class WinBusyWaiting : public BusyWaiting {
 public:
    std::uint64_t now() const override;
    void wait(unsigned milliseconds) override;
};
