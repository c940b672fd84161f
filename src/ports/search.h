#pragma once

#include <functional>

class EventSink;
class Files;

/// What is watched. Opening, of a directory or a drive, goes on while something is typed. Alone: a
/// pass that goes on alone, which a press on any button stops, too.
enum class SearchKind { Documents, Opening, Alone };

/// Serves the window while the main thread searches, and knows when the search is to stop. What
/// these raise ends the search and is passed on.
class SearchWatch {
 public:
    virtual ~SearchWatch() = default;

    /// A search begins in this window's name, or ends. Use Searching.
    virtual void begin(const EventSink& window, SearchKind kind) = 0;
    virtual void end() = 0;
    /// Whether the user gave up the search that runs, rather than ask for a newer one.
    virtual bool stopped() const = 0;

    /// Does what has come for the window, without waiting. False: the search is to stop.
    virtual bool serve() = 0;

    /// The same, but waits first, for wake() or a few milliseconds. One call of wake() that came
    /// before the wait counts.
    virtual bool wait() = 0;

    /// Ends a wait, or the next one when there is none. May be called by any thread, and does not
    /// block.
    virtual void wake() = 0;
};

/// While it lives a command searches, and the program's windows stay responsive. What the user does
/// meanwhile is no command: it stops the search, restarts it, ends the program, or is dropped.
class Searching {
 public:
    /// `window` searches: its frame ends the program, its controls may ask for a newer search.
    Searching(SearchWatch& watch, const EventSink& window, SearchKind kind) : watch_(watch) {
        watch_.begin(window, kind);
    }
    ~Searching() { watch_.end(); }
    Searching(const Searching&) = delete;
    Searching& operator=(const Searching&) = delete;

    /// Whether the user gave the search up.
    bool stopped() const { return watch_.stopped(); }

 private:
    SearchWatch& watch_;
};

/// For searches during which no window is served.
class Unwatched : public SearchWatch {
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

    /// Runs a job on a thread of its own, sooner or later. Nobody waits for its end, so it owns all
    /// that it works on, and it raises nothing. False when no thread can be had: the job is not
    /// run. May be called by any thread.
    virtual bool start(std::function<void()> job) = 0;
};

/// Refuses every job: its callers do all their work themselves.
class NoWorkers : public Workers {
 public:
    bool start(std::function<void()>) override { return false; }
};

/// What a search needs: what it reads, who reads ahead, and who may end it.
struct SearchServices {
    Files& files;
    Workers& workers;
    SearchWatch& watch;
};
