#pragma once

/// How the main thread, while it searches, serves its window. What these raise ends the search and
/// is let through.
class SearchPatience {
 public:
    virtual ~SearchPatience() = default;

    /// Does what has come for the window, without waiting. False: the search is to stop.
    virtual bool serve() = 0;

    /// The same, but waits first: until wake() is called, of which one call that came before
    /// counts, or a few milliseconds.
    virtual bool wait() = 0;

    /// Ends a wait, or the next one when there is none. Called by any thread, and waits for none.
    virtual void wake() = 0;
};

/// For searches that nobody watches and that wait for nobody.
class Unwatched : public SearchPatience {
 public:
    bool serve() override { return true; }
    bool wait() override { return true; }
    void wake() override {}
};
