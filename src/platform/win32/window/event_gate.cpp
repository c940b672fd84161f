#include "platform/win32/window/event_gate.h"

#include <new>

#include "common/runtime_error.h"
#include "platform/win32/window/fatal_error.h"
#include "platform/win32/window/hourglass.h"

void EventGate::deliver(EventSink& sink, int controlId, Event event, HWND window) {
    if (ended_) return;
    if (running_) {
        waiting_.push_back({&sink, controlId, event, window});
        return;
    }
    run([&] { sink.raise(controlId, event); });
}

void EventGate::run(const std::function<void()>& action) {
    runOne(action);
    while (!waiting_.empty() && !ended_) {
        const Waiting next = waiting_.front();
        waiting_.pop_front();
        if (stillPossible(next)) runOne([&] { next.sink->raise(next.controlId, next.event); });
    }
}

bool EventGate::stillPossible(const Waiting& waiting) {
    if (!IsWindowVisible(waiting.window)) return false;
    HWND control = GetDlgItem(waiting.window, waiting.controlId);
    return !control || IsWindowEnabled(control);
}

void EventGate::forget(const EventSink& sink) {
    std::erase_if(waiting_, [&](const Waiting& event) { return event.sink == &sink; });
}

void EventGate::runOne(const std::function<void()>& action) {
    running_ = true;
    const Hourglass hourglass;
    try {
        action();
    } catch (const ProgramEnd&) {
        end(0);
    } catch (const RuntimeError& error) {
        showFatalError(error);
        end(error.number);
    } catch (const std::bad_alloc&) {
        showFatalError(errors::outOfMemory());
        end(errors::outOfMemory().number);
    }
    running_ = false;
}

void EventGate::end(int exitCode) {
    ended_ = true;
    exitCode_ = exitCode;
    waiting_.clear();
    PostQuitMessage(exitCode);
}
