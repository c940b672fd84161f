#pragma once

#include <windows.h>

#include "input/press_judge.h"
#include "win32/process/unique.h"

/// Sees every message that the thread takes from its queue, in whatever loop, and drops the presses
/// on buttons that are not meant, those of message boxes included: pressed while a call to another
/// program was out or a command was at work, the second of a double click on a window that has just
/// come up, the repetitions of a held key. All other messages pass, posted ones included.
class InputSieve {
 public:
    InputSieve();
    ~InputSieve();
    InputSieve(const InputSieve&) = delete;
    InputSieve& operator=(const InputSieve&) = delete;

    /// What the event goes back to that is raised now.
    static PressVerdict currentPress();
    /// Whether a press of the mouse that comes now is the second of a double click, and its first
    /// one has brought up a window.
    static bool secondPressComes();

    /// The message that was taken last has been handled.
    static void messageHandled();
    static void workEnded();
    static void windowShown();
    /// How many windows and boxes have come up so far.
    static int windowsShown();

    /// Judges a message that is taken from the queue; true when it is to be dropped.
    bool drops(const MSG& message);

 private:
    PressJudge judge_;
    int windowsShown_ = 0;
    UniqueHook hook_;
};
