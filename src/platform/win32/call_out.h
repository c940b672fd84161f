#pragma once

#include <windows.h>

#include <functional>

/// Marks that a call to another program is out. Meanwhile that program may make us wait, and the
/// user's presses on our buttons are dropped, so that an impatient click is not a second command.
class CallOut {
 public:
    CallOut() { ++depth_; }
    ~CallOut() { --depth_; }
    CallOut(const CallOut&) = delete;
    CallOut& operator=(const CallOut&) = delete;

    static bool any() { return depth_ > 0; }

 private:
    inline static int depth_ = 0;
};

/// Makes a call to another program, again and again while that program is too busy to take it;
/// after ten seconds the user is asked whether to go on. Gives the last answer.
HRESULT callPatiently(const std::function<HRESULT()>& call);
