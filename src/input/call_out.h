#pragma once

#include "input/long_work.h"

/// Marks that a call to another program is out. Meanwhile that program may make us wait, and the
/// user's presses on our buttons are dropped, so that an impatient click is not a second command.
class CallOut : private LongWork {
 public:
    CallOut() { ++depth_; }
    ~CallOut() { --depth_; }
    CallOut(const CallOut&) = delete;
    CallOut& operator=(const CallOut&) = delete;

    static bool any() { return depth_ > 0; }

 private:
    inline static int depth_ = 0;
};
