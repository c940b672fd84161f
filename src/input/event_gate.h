#pragma once

#include <exception>
#include <functional>
#include <vector>

#include "input/judge.h"
#include "ports/window.h"

class MessageBoxes;
struct MessageBoxContent;
struct RuntimeError;

/// The box that tells the user why a run-time error ends the program.
MessageBoxContent fatalErrorBox(const RuntimeError& error);

/// What the gate asks of the window that an event comes from.
class EventSource {
 public:
    virtual ~EventSource() = default;

    virtual bool isShown() const = 0;
    /// Whether the control is visible and enabled; true when the window has none of this id.
    virtual bool canUse(int controlId) const = 0;
};

/// What the gate needs of the machine.
class GateKeeper {
 public:
    virtual ~GateKeeper() = default;

    /// A handler has begun or ended, and the pointer shows whether the user has to wait.
    virtual void showPointer() = 0;
    /// Lets the message loop end.
    virtual void quit(int exitCode) = 0;
};

/// The one door through which events reach the windows' handlers, and the place where errors end
/// the program: whatever a handler throws becomes a box. One handler runs at a time; events that
/// arrive meanwhile wait.
class EventGate {
 public:
    EventGate(GateKeeper& keeper, MessageBoxes& boxes, Judge& judge)
        : keeper_(keeper), boxes_(boxes), judge_(judge) {}

    Judge& judge() const { return judge_; }

    /// Runs the handler of an event now, or after the one that is running, if the user could then
    /// still do what it stands for. During a search the judge decides which events wait at all.
    void deliver(EventSink& sink, int controlId, Event event, const EventSource& source) noexcept;

    /// Runs something that is no event's handler but may take as long, then the events that waited.
    void run(const std::function<void()>& action) noexcept;

    /// Runs whatever else a window does with its messages. An error ends the program, too, after
    /// the running handler, if there is one.
    template <class Action>
    void guard(const Action& action) noexcept {
        try {
            action();
        } catch (...) {
            if (!failure_) failure_ = std::current_exception();
        }
        if (!busy()) endIfFailed();
    }

    /// Drops the waiting events of a window that is gone.
    void forget(const EventSource& source);

    /// Whether a handler is running.
    bool busy() const { return judge_.situation().handling; }
    bool ended() const { return ended_; }
    int exitCode() const { return exitCode_; }

 private:
    struct Delivery {
        EventSink* sink;
        int controlId;
        Event event;
        const EventSource* source;
        DuringSearch duringSearch;  ///< what it asked of the search during which it came
        bool waited;                ///< for another handler

        bool operator==(const Delivery&) const = default;
    };

    bool isRefused(const Delivery& delivery) const;
    void queue(const Delivery& delivery);
    void dropStoppedSearches();
    DuringSearch askedByWaiting() const;

    void serve();
    template <class Action>
    void runOne(const Action& action);
    void endIfFailed() noexcept;
    void tellWhy();

    GateKeeper& keeper_;
    MessageBoxes& boxes_;
    Judge& judge_;
    std::vector<Delivery> deliveries_;
    std::exception_ptr failure_;
    bool ended_ = false;
    int exitCode_ = 0;
};
