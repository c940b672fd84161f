#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "input/verdict.h"
#include "ports/search.h"

/// Is told what the program is busy with and what the user did last, and decides whether something
/// counts now. There is one, shared by all who take messages, raise events, call or search.
///
/// A press is judged by the time at which it was made, whenever it is taken from the queue.
class Judge {
 public:
    /// What makes two presses a double click: the system's own limits.
    struct Limits {
        Moment time = 500;
        std::int32_t width = 4;   ///< pixels
        std::int32_t height = 4;  ///< pixels
    };

    Judge(const Limits& limits, std::function<Moment()> now)
        : limits_(limits), now_(std::move(now)) {}

    const Situation& situation() const { return situation_; }
    Moment now() const { return now_(); }

    /// A message is taken from the queue. What happens from now on is due to this press, until the
    /// next message or `messageHandled`.
    Verdict take(const Deed& deed);
    void messageHandled() { situation_.press.reset(); }

    /// A window is about to do something, or an event is at the gate.
    Verdict judge(const Deed& deed);
    /// Whether a press at this place, not yet taken from the queue, may activate a window.
    Verdict judgeActivation(std::int32_t x, std::int32_t y) const;

    // What the program is doing.

    /// `waiting`: the most that a waiting event asks of a search.
    void handlerBegins(DuringSearch waiting);
    void handlerEnds();
    /// Nothing runs or waits any more.
    void atRest();
    void callBegins();
    void callEnds() { --situation_.callsOut; }
    void questionBegins();
    void questionEnds() { --situation_.questions; }
    void windowShown();
    /// How many windows and boxes have come up so far.
    int windowsShown() const { return windowsShown_; }
    void searchBegins(const EventSink& window, SearchKind kind);
    void searchEnds() { situation_.searching = nullptr; }

    /// Whether the user gave up the search that is running or ran last.
    bool searchStopped() const { return situation_.wish == Situation::Wish::Stop; }
    /// False when the search is to end. Raises ProgramEnd when the program is to end.
    bool searchGoesOn() const;
    /// How many milliseconds the search has lasted; 0 when there is none.
    Moment searchLasts() const;
    /// The user was asked whether to wait for the call that is out, and has answered.
    void closeAnswered() { situation_.closeAsked.reset(); }

 private:
    void note(const Deed& deed);
    void notePress(const Deed& deed);
    void noteKeyDown(const Deed& deed);
    void noteKeyUp(const Deed& deed);
    Press pressOf(Moment time, std::int32_t x, std::int32_t y) const;
    bool isSecond(const Press& press) const;
    void wish(Situation::Wish wish);

    Limits limits_;
    std::function<Moment()> now_;
    Situation situation_;
    std::optional<Press> mouse_;  ///< the last one of mouse, pen or finger
    std::optional<Press> key_;    ///< the last key that went down
    int keyDown_ = 0;
    std::optional<Moment> keyUp_;
    bool keptWaiting_ = false;  ///< the running handler has called or searched
    Moment searchBegan_ = 0;
    int windowsShown_ = 0;
};

/// While it lives a call to another program is out.
class CallOut {
 public:
    explicit CallOut(Judge& judge) : judge_(judge) { judge_.callBegins(); }
    ~CallOut() { judge_.callEnds(); }
    CallOut(const CallOut&) = delete;
    CallOut& operator=(const CallOut&) = delete;

 private:
    Judge& judge_;
};

/// The time of a message, of which Windows has the lower 32 bits only (the GetMessageTime
/// function): of all moments with these bits the one nearest to now.
Moment widened(std::uint32_t time, Moment now);
