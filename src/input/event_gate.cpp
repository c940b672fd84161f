#include "input/event_gate.h"

#include <algorithm>
#include <new>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/dialogs.h"

MessageBoxContent fatalErrorBox(const RuntimeError& error) {
    return {.text = L"Erreur d'exécution '" + decimal(error.number) + L"' :\r\n" + error.text,
            .icon = MessageBoxContent::Icon::Stop};
}

void EventGate::deliver(EventSink& sink, int controlId, Event event,
                        const EventSource& source) noexcept {
    guard([&] {
        if (ended_) return;
        dropStoppedSearches();
        const DuringSearch asked = sink.duringSearch(controlId, event);
        const Verdict verdict = judge_.judge({.kind = Deed::Kind::Event,
                                              .window = &sink,
                                              .closes = event == Event::Close,
                                              .duringSearch = asked});
        if (verdict != Verdict::Counts && verdict != Verdict::Restarts) return;
        const bool restarts = verdict == Verdict::Restarts;
        queue({&sink, controlId, event, &source, restarts ? asked : DuringSearch::Drop, busy()});
        if (!busy()) serve();
    });
}

// A newer search is made once, however often it was asked for.
void EventGate::queue(const Delivery& delivery) {
    const bool asksAgain = delivery.duringSearch != DuringSearch::Drop &&
                           std::ranges::find(deliveries_, delivery) != deliveries_.end();
    if (!asksAgain) deliveries_.push_back(delivery);
}

void EventGate::run(const std::function<void()>& action) noexcept {
    runOne(action);
    guard([&] { serve(); });
}

bool EventGate::isRefused(const Delivery& delivery) const {
    // The end of the Windows session closes every window, hidden ones, too.
    if (!delivery.waited && delivery.event != Event::Close) return false;
    const bool usable = delivery.source->isShown() && delivery.source->canUse(delivery.controlId);
    return verdictOn(judge_.situation(), {.kind = Deed::Kind::WaitedEvent, .usable = usable}) ==
           Verdict::Drops;
}

void EventGate::serve() {
    while (!ended_) {
        dropStoppedSearches();
        if (deliveries_.empty()) return judge_.atRest();
        const Delivery next = deliveries_.front();
        deliveries_.erase(deliveries_.begin());
        if (!isRefused(next)) runOne([&] { next.sink->raise(next.controlId, next.event); });
    }
}

// One press of Escape ends the search, and those that were asked for before it.
void EventGate::dropStoppedSearches() {
    if (!judge_.searchStopped()) return;
    std::erase_if(deliveries_,
                  [](const Delivery& event) { return event.duringSearch != DuringSearch::Drop; });
}

DuringSearch EventGate::askedByWaiting() const {
    DuringSearch most = DuringSearch::Drop;
    for (const Delivery& event : deliveries_) most = std::max(most, event.duringSearch);
    return most;
}

template <class Action>
void EventGate::runOne(const Action& action) {
    judge_.handlerBegins(askedByWaiting());
    keeper_.showPointer();
    guard(action);
    judge_.handlerEnds();
    keeper_.showPointer();
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
        // There is not even memory for the box, but the exit code is known.
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
