#include "platform/event_gate.h"

#include <new>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "platform/message_boxes.h"

MessageBoxContent fatalErrorBox(const RuntimeError& error) {
    return {.text = L"Erreur d'exécution '" + decimal(error.number) + L"' :\r\n" + error.text,
            .title = L"Tarnwick",
            .icon = MessageBoxContent::Icon::Stop};
}

void EventGate::deliver(EventSink& sink, int controlId, Event event, const EventSource& source) {
    if (ended_) return;
    if (running_) {
        waiting_.push_back({&sink, controlId, event, &source});
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
    return waiting.source->isShown() && waiting.source->isEnabled(waiting.controlId);
}

void EventGate::forget(const EventSource& source) {
    std::erase_if(waiting_, [&](const Waiting& event) { return event.source == &source; });
}

void EventGate::runOne(const std::function<void()>& action) {
    running_ = true;
    keeper_.setHourglass(true);
    try {
        action();
    } catch (const ProgramEnd&) {
        end(0);
    } catch (const RuntimeError& error) {
        fail(error);
    } catch (const std::bad_alloc&) {
        fail(errors::outOfMemory());
    }
    keeper_.setHourglass(false);
    running_ = false;
}

void EventGate::fail(const RuntimeError& error) {
    boxes_.show(fatalErrorBox(error));
    end(error.number);
}

void EventGate::end(int exitCode) {
    ended_ = true;
    exitCode_ = exitCode;
    waiting_.clear();
    keeper_.quit(exitCode);
}
