#pragma once

#include <chrono>

#include "input/long_work.h"
#include "ports/events.h"

/// Marks that a command searches, before its user's eyes and while the program's windows live. What
/// the user does meanwhile is no command: it stops the search, has it begin again, ends the
/// program, or is dropped.
class Searching : private LongWork {
 public:
    using Duration = std::chrono::steady_clock::duration;

    Searching() : before_(current_) { current_ = this; }
    ~Searching() { current_ = before_; }
    Searching(const Searching&) = delete;
    Searching& operator=(const Searching&) = delete;

    /// Whether the user gave up what it has not found yet.
    bool stopped() const { return wish_ == Wish::Stop; }

    // Of the search that runs, if one does.

    static bool any() { return current_ != nullptr; }
    /// For how long it has run; zero when there is none.
    static Duration lasting();
    /// The user has it stop.
    static void stop();
    /// What the user did to a control or a window meanwhile. True when it is to be handled once
    /// the search has ended, which it then does at once.
    static bool keeps(const EventSink& sink, int controlId, Event event);
    /// False when it is to end now. Raises ProgramEnd when the program is.
    static bool goesOn();

 private:
    /// The later ones go before the earlier ones.
    enum class Wish { None, Stop, Restart, EndProgram };

    static void wish(Wish wish);

    inline static Searching* current_ = nullptr;
    Searching* before_;
    Wish wish_ = Wish::None;
    std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};
