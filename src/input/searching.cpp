#include "input/searching.h"

#include <algorithm>

#include "common/runtime_error.h"

Searching::Duration Searching::lasting() {
    return any() ? std::chrono::steady_clock::now() - current_->began_ : Duration::zero();
}

void Searching::stop() { wish(Wish::Stop); }

void Searching::wish(Wish wish) {
    if (any()) current_->wish_ = std::max(current_->wish_, wish);
}

bool Searching::keeps(const EventSink& sink, int controlId, Event event) {
    if (event == Event::Close) wish(Wish::EndProgram);
    const bool restarts = sink.restartsSearch(controlId, event);
    if (restarts) wish(Wish::Restart);
    return restarts;
}

bool Searching::goesOn() {
    if (!any()) return true;
    if (current_->wish_ == Wish::EndProgram) throw ProgramEnd{};
    return current_->wish_ == Wish::None;
}
