#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "ports/automation.h"

class Judge;
class MessageBoxes;

/// What waiting for a busy application needs of the machine.
class BusyWaiting {
 public:
    virtual ~BusyWaiting() = default;

    /// Milliseconds since some moment.
    virtual std::uint64_t now() const = 0;
    /// Lets this time pass; the windows draw meanwhile.
    virtual void wait(unsigned milliseconds) = 0;
    /// Handles the input that has come for the windows.
    virtual void handleInput() = 0;
    /// Has the call that is out look up after this time, so that `whilePending` is called.
    virtual void wakeIn(unsigned milliseconds) = 0;
    /// Ends the program at once, with code 0.
    virtual void endProgram() = 0;
};

/// When a call that a busy application refused is tried again. A refused call never ran, so it
/// can be repeated safely: at once, then at growing intervals up to a second; ten seconds after the
/// first refusal the user is asked. One clock serves all who see a refusal.
class Patience {
 public:
    Patience(BusyWaiting& machine, MessageBoxes& boxes, Judge& judge)
        : machine_(machine), boxes_(boxes), judge_(judge) {}

    /// Makes a call, again and again while it is refused. Gives the last answer, which is a refusal
    /// when the user gave up.
    CallResult call(const std::function<CallResult()>& attempt);

    /// How the box that asks the user finds out whether marks are kept, which it then promises.
    void promiseMarksWhen(std::function<bool()> kept) { marksKept_ = std::move(kept); }

    /// The call that is out was refused: how many milliseconds to wait before it is tried again,
    /// or nothing when the user is to be asked.
    std::optional<unsigned> afterRefusal();

    /// The call that is out has not returned, and something came meanwhile. Input that waited for
    /// it would be a command afterwards. When it does not return long after the user asked to close
    /// the window, asks whether to leave without it.
    void whilePending();

 private:
    CallResult tryOnce(const std::function<CallResult()>& attempt);
    void waitOut(unsigned milliseconds);
    bool userGoesOn();
    bool userLeaves();

    BusyWaiting& machine_;
    MessageBoxes& boxes_;
    Judge& judge_;
    std::function<bool()> marksKept_;
    std::optional<std::uint64_t> refusedSince_;
};
