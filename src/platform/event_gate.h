#pragma once

#include <deque>
#include <functional>

#include "platform/events.h"

class MessageBoxes;
struct MessageBoxContent;
struct RuntimeError;

/// What tells the user why a run-time error ends the program.
MessageBoxContent fatalErrorBox(const RuntimeError& error);

/// The window that an event comes from, as the gate asks about it.
class EventSource {
 public:
    virtual ~EventSource() = default;

    virtual bool isShown() const = 0;
    /// Whether the user may use the control; true when the window has none of this id.
    virtual bool isEnabled(int controlId) const = 0;
};

/// What the gate has the machine do.
class GateKeeper {
 public:
    virtual ~GateKeeper() = default;

    virtual void setHourglass(bool shown) = 0;
    /// Lets the message loop end.
    virtual void quit(int exitCode) = 0;
};

/// The one door through which events reach the windows' handlers, and where errors end the
/// program. One handler runs at a time: an event that arrives meanwhile waits until it has ended.
class EventGate {
 public:
    EventGate(GateKeeper& keeper, MessageBoxes& boxes) : keeper_(keeper), boxes_(boxes) {}

    /// Runs the handler of an event now, or after the one that runs; then only if the user could
    /// still do what it stands for.
    void deliver(EventSink& sink, int controlId, Event event, const EventSource& source);

    /// Runs anything that may raise a run-time error or end the program.
    void run(const std::function<void()>& action);

    /// Drops the waiting events of a window that is gone.
    void forget(const EventSource& source);

    /// Whether a handler runs.
    bool busy() const { return running_; }
    bool ended() const { return ended_; }
    int exitCode() const { return exitCode_; }

 private:
    struct Waiting {
        EventSink* sink;
        int controlId;
        Event event;
        const EventSource* source;
    };

    static bool stillPossible(const Waiting& waiting);

    void runOne(const std::function<void()>& action);
    void fail(const RuntimeError& error);
    void end(int exitCode);

    GateKeeper& keeper_;
    MessageBoxes& boxes_;
    std::deque<Waiting> waiting_;
    bool running_ = false;
    bool ended_ = false;
    int exitCode_ = 0;
};
