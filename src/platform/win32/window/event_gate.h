#pragma once

#include <windows.h>

#include <deque>
#include <functional>

#include "platform/events.h"

/// The one door through which events reach the forms, and where errors end the program.
/// One handler runs at a time: an event that arrives meanwhile waits until it has ended.
class EventGate {
 public:
    /// Runs the handler of an event of a window now, or after the one that runs; then only if the
    /// user could still do what it stands for.
    void deliver(EventSink& sink, int controlId, Event event, HWND window);

    /// Runs anything that may raise a run-time error or end the program.
    void run(const std::function<void()>& action);

    /// Drops the waiting events of a window that is gone.
    void forget(const EventSink& sink);

    bool handlerRuns() const { return running_; }
    bool ended() const { return ended_; }
    int exitCode() const { return exitCode_; }

 private:
    struct Waiting {
        EventSink* sink;
        int controlId;
        Event event;
        HWND window;
    };

    static bool stillPossible(const Waiting& waiting);

    void runOne(const std::function<void()>& action);
    void end(int exitCode);

    std::deque<Waiting> waiting_;
    bool running_ = false;
    bool ended_ = false;
    int exitCode_ = 0;
};
