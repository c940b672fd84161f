#pragma once

#include <functional>

class EventSink;

/// A directory or a drive that is only opened goes on while something is typed. Alone: a pass that
/// goes on alone is watched as a search is, and stopped by a press on any button, too.
enum class SearchKind { Documents, Opening, Alone };

/// How the main thread, while it searches, serves its window. What these raise ends the search and
/// is let through.
class SearchPatience {
 public:
    virtual ~SearchPatience() = default;

    /// A search begins in this window's name, or ends. Use Searching.
    virtual void begin(const EventSink& window, SearchKind kind) = 0;
    virtual void end() = 0;
    /// Whether the user gave up the search that runs, rather than ask for a newer one.
    virtual bool stopped() const = 0;

    /// Does what has come for the window, without waiting. False: the search is to stop.
    virtual bool serve() = 0;

    /// The same, but waits first: until wake() is called, of which one call that came before
    /// counts, or a few milliseconds.
    virtual bool wait() = 0;

    /// Ends a wait, or the next one when there is none. Called by any thread, and waits for none.
    virtual void wake() = 0;
};

/// While it lives a command searches, before its user's eyes and while the program's windows live.
/// What the user does meanwhile is no command: it stops the search, has it begin again, ends the
/// program, or is dropped.
class Searching {
 public:
    /// `window`: the one that searches. Its frame ends the program, its controls may ask for a
    /// newer search.
    Searching(SearchPatience& patience, const EventSink& window, SearchKind kind)
        : patience_(patience) {
        patience_.begin(window, kind);
    }
    ~Searching() { patience_.end(); }
    Searching(const Searching&) = delete;
    Searching& operator=(const Searching&) = delete;

    /// Whether the user gave up what has not been found yet.
    bool stopped() const { return patience_.stopped(); }

 private:
    SearchPatience& patience_;
};

/// For searches that nobody watches and that wait for nobody.
class Unwatched : public SearchPatience {
 public:
    void begin(const EventSink&, SearchKind) override {}
    void end() override {}
    bool stopped() const override { return false; }
    bool serve() override { return true; }
    bool wait() override { return true; }
    void wake() override {}
};

/// Threads beside the main one, for what would make it wait.
class Workers {
 public:
    virtual ~Workers() = default;

    /// Runs a job on a thread of its own, sooner or later. It owns all that it works on, for nobody
    /// waits for its end, and raises nothing. False, and the job is not run, when there is no
    /// thread to be had. Called by any thread.
    virtual bool start(std::function<void()> job) = 0;
};

/// For callers that do all their work themselves.
class NoWorkers : public Workers {
 public:
    bool start(std::function<void()>) override { return false; }
};

class Files;
class SearchPatience;
class Workers;

/// By whom a search reads, and who may end it.
struct SearchServices {
    Files& files;
    Workers& workers;
    SearchPatience& patience;
};
