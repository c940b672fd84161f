#pragma once

#include <exception>
#include <functional>
#include <vector>

#include "input/judge.h"
#include "ports/window.h"

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
    /// Whether the user may use the control, which is to be seen and enabled; true when the window
    /// has none of this id.
    virtual bool canUse(int controlId) const = 0;
};

/// What the gate has the machine do.
class GateKeeper {
 public:
    virtual ~GateKeeper() = default;

    /// A handler begins or ends: the pointer says whether the user has to wait.
    virtual void showPointer() = 0;
    /// Lets the message loop end.
    virtual void quit(int exitCode) = 0;
};

/// The one door through which events reach the windows' handlers, and where errors end the
/// program: whatever is thrown behind it becomes a box. One handler runs at a time: an event that
/// arrives meanwhile waits until it has ended.
class EventGate {
 public:
    EventGate(GateKeeper& keeper, MessageBoxes& boxes, Judge& judge)
        : keeper_(keeper), boxes_(boxes), judge_(judge) {}

    Judge& judge() const { return judge_; }

    /// Runs the handler of an event now, or after the one that runs; then only if the user could
    /// still do what it stands for. While that one searches, only if the judge lets it.
    void deliver(EventSink& sink, int controlId, Event event, const EventSource& source) noexcept;

    /// Runs what is no event's handler but may take as long, and then the events that waited.
    void run(const std::function<void()>& action) noexcept;

    /// Runs the rest of what a window does with its messages. An error there ends the program, too,
    /// after the handler that runs, if one does.
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

    /// Whether a handler runs.
    bool busy() const { return judge_.situation().handling; }
    bool ended() const { return ended_; }
    int exitCode() const { return exitCode_; }

 private:
    struct Delivery {
        EventSink* sink;
        int controlId;
        Event event;
        const EventSource* source;
        DuringSearch duringSearch;  ///< what it asked of the search while which it came
        bool waited;                ///< while another handler ran

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
