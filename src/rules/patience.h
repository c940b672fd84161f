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
    /// Waits, while the windows are still drawn.
    virtual void wait(unsigned milliseconds) = 0;
    /// Handles the input that has come for the windows.
    virtual void handleInput() = 0;
    /// Interrupts the call that is out after this time, so that `whilePending` is called.
    virtual void wakeIn(unsigned milliseconds) = 0;
    /// If another program has sent the message that is being handled, lets it go on at once. False
    /// when none did, or it has gone on already.
    virtual bool answerSender() = 0;
    /// Ends the program at once, with code 0.
    virtual void endProgram() = 0;
};

/// Decides when a call that a busy application refused is tried again. A refused call did not run,
/// so it can safely be repeated: at once, then at growing intervals of up to a second. Ten seconds
/// after the first refusal the user is asked. One clock serves all who see a refusal.
class Patience {
 public:
    Patience(BusyWaiting& machine, MessageBoxes& boxes, Judge& judge)
        : machine_(machine), boxes_(boxes), judge_(judge) {}

    /// Makes a call, again and again while it is refused. Returns the last answer, which is a
    /// refusal when the user gave up.
    CallResult call(const std::function<CallResult()>& attempt);

    /// `kept` tells the box that asks the user whether it can promise that the marks are kept.
    void promiseMarksWhen(std::function<bool()> kept) { marksKept_ = std::move(kept); }

    /// The call that is out was refused. Returns how many milliseconds to wait before the next try,
    /// nothing when the user is to be asked.
    std::optional<unsigned> afterRefusal();

    /// Messages came while a call is out. Handles input, which would become a command if it waited
    /// for the call to return. Long after the user asked to close the window, asks whether to leave
    /// without waiting.
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
