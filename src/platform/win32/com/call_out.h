#pragma once

#include <windows.h>

#include <functional>

/// Marks that a call to another program is out. Meanwhile that program may make us wait, and the
/// user's presses on our buttons are dropped, so that an impatient click is not a second command.
class CallOut {
 public:
    CallOut() {
        ++depth_;
        repeatedInVain_ = false;
    }
    ~CallOut() { --depth_; }
    CallOut(const CallOut&) = delete;
    CallOut& operator=(const CallOut&) = delete;

    static bool any() { return depth_ > 0; }

    /// The message filter has repeated the call that is out for as long as the retry policy has
    /// it, and it was refused each time. Known until the next call goes out.
    static void noteRepeatedInVain() { repeatedInVain_ = true; }
    static bool repeatedInVain() { return repeatedInVain_; }

 private:
    inline static int depth_ = 0;
    inline static bool repeatedInVain_ = false;
};

/// Makes a call to another program, again and again while that program is too busy to take it;
/// after ten seconds the user is asked whether to go on. Gives the last answer.
HRESULT callPatiently(const std::function<HRESULT()>& call);
