#include "input/event_gate.h"

#include <new>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "input/searching.h"
#include "ports/message_boxes.h"

MessageBoxContent fatalErrorBox(const RuntimeError& error) {
    return {.text = L"Erreur d'exécution '" + decimal(error.number) + L"' :\r\n" + error.text,
            .title = L"Tarnwick",
            .icon = MessageBoxContent::Icon::Stop};
}

void EventGate::deliver(EventSink& sink, int controlId, Event event,
                        const EventSource& source) noexcept {
    guard([&] {
        if (ended_) return;
        if (Searching::any() && !Searching::keeps(sink, controlId, event)) return;
        deliveries_.push_back({&sink, controlId, event, &source, running_});
        if (!running_) serve();
    });
}

void EventGate::run(const std::function<void()>& action) noexcept {
    runOne(action);
    guard([&] { serve(); });
}

// The one place where an event that came can be refused.
bool EventGate::isRefused(const Delivery& delivery) {
    if (!delivery.waited) return false;
    return !delivery.source->isShown() || !delivery.source->canUse(delivery.controlId);
}

void EventGate::serve() {
    while (!deliveries_.empty() && !ended_) {
        const Delivery next = deliveries_.front();
        deliveries_.erase(deliveries_.begin());
        if (!isRefused(next)) runOne([&] { next.sink->raise(next.controlId, next.event); });
    }
}

template <class Action>
void EventGate::runOne(const Action& action) {
    running_ = true;
    keeper_.setHourglass(true);
    guard(action);
    keeper_.setHourglass(false);
    running_ = false;
    endIfFailed();
}

void EventGate::forget(const EventSource& source) {
    std::erase_if(deliveries_, [&](const Delivery& event) { return event.source == &source; });
}

void EventGate::endIfFailed() noexcept {
    if (!failure_ || ended_) return;
    ended_ = true;
    deliveries_.clear();
    try {
        tellWhy();
    } catch (...) {
        // There is not even memory for the box: the exit code is known all the same.
    }
    keeper_.quit(exitCode_);
}

void EventGate::tellWhy() {
    try {
        std::rethrow_exception(failure_);
    } catch (const ProgramEnd&) {
        exitCode_ = 0;
    } catch (const RuntimeError& error) {
        exitCode_ = error.number;
        boxes_.show(fatalErrorBox(error));
    } catch (const std::bad_alloc&) {
        exitCode_ = 7;
        boxes_.show(fatalErrorBox(errors::outOfMemory()));
    } catch (...) {
        exitCode_ = 51;
        boxes_.show(fatalErrorBox(errors::unexpected()));
    }
}
