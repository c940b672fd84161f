#pragma once

#include <cstdint>
#include <optional>

#include "ports/window.h"

/// Milliseconds since the system started.
using Moment = std::uint64_t;

/// A press by a person, with a mouse button, a pen, a finger or a key: when and where.
struct Press {
    Moment time = 0;
    std::int32_t x = 0;        ///< pixels of the screen; 0 for keys
    std::int32_t y = 0;        ///< the same
    bool repeated = false;     ///< by a key that is held
    bool second = false;       ///< the second press of a double click
    bool onNewWindow = false;  ///< such a second press, and a window has come up since the first
};

/// What the program is busy with and what the user did last: all that decides whether a deed
/// counts.
struct Situation {
    /// A later wish replaces an earlier one, but for EndProgram.
    enum class Wish { None, Stop, Restart, Reopen, EndProgram };

    // What is out.
    bool handling = false;               ///< a handler is running
    int callsOut = 0;                    ///< calls to another program that have not returned
    std::optional<Moment> closeAsked{};  ///< when the user asked to close during one of them

    // What is shown.
    int questions = 0;               ///< boxes and dialogs of the system that wait for an answer
    std::optional<Moment> shown{};   ///< when a window or a box last came up
    std::optional<Moment> worked{};  ///< until when a call or a search kept the user waiting

    // What is searched.
    const EventSink* searching = nullptr;    ///< the window that searches
    bool opening = false;                    ///< it only opens a directory or a drive
    bool alone = false;                      ///< it searches nothing, its pass goes on alone
    std::optional<Moment> searchingSince{};  ///< when the first of the searches in a row began
    Wish wish = Wish::None;                  ///< what the user wants of the search

    /// The press that the current message or event is due to, if any.
    std::optional<Press> press{};
};

/// Something that a person or a program does, as a message tells it or a window understands it.
struct Deed {
    enum class Kind {
        // Messages as they are taken from the queue.
        Press,       ///< a mouse button goes down, or Windows has made that of a touch
        FramePress,  ///< the same outside a client area: on a window's frame or a scroll bar
        Touch,       ///< a pen or a finger goes down
        Release,     ///< any of these goes up
        Menu,        ///< the right button goes up, which opens a menu
        Key,         ///< a key goes down
        KeyUp,
        HotKey,  ///< a key that acts whichever program is in front goes down
        Typed,   ///< the character that a key writes
        Scroll,  ///< wheels and gestures
        Click,   ///< of a control, posted by a program
        Other,
        // What a window is about to do.
        Activate,  ///< itself, because the mouse was pressed in it
        OpenMenu,  ///< its system menu, by the mouse
        Aside,     ///< help, a menu by the right button, or dropped files
        Command,   ///< a button, an item of a menu, a double click, Enter
        HotKeyCommand,
        // Events at the gate.
        Event,
        WaitedEvent  ///< it had to wait for another handler, which has ended
    };
    /// What it is done to.
    enum class Target { Other, Button, SearchControl, Window };

    Kind kind = Kind::Other;
    Target target = Target::Other;
    Moment time = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
    int key = 0;            ///< its virtual-key code
    bool repeated = false;  ///< the key is held
    bool withAlt = false;   ///< the key goes down while Alt is held
    bool ofTouch = false;   ///< Windows has made the press of a touch, which came before

    const EventSink* window = nullptr;  ///< the window whose event it is
    bool closes = false;                ///< the window's frame asks to be closed
    DuringSearch duringSearch = DuringSearch::Drop;
    bool takesSecond = true;   ///< the second press of a double click counts like the first
    bool fromProgram = false;  ///< another program sent it, whatever was pressed last
    bool usable = true;        ///< what it is done to is visible and enabled
};

/// The virtual-key codes that mean something here (winuser.h).
namespace virtual_key {
inline constexpr int kEnter = 0x0D;
inline constexpr int kEscape = 0x1B;
inline constexpr int kSpace = 0x20;
}  // namespace virtual_key

enum class Verdict {
    Counts,
    Drops,
    StopsSearch,  ///< and does nothing else
    Restarts,     ///< ends the search at once, and counts then
    EndsProgram
};

/// Whether a deed counts now: a press, a key or another message, a command, an event that is new
/// or has waited. The one place where that is decided.
Verdict verdictOn(const Situation& situation, const Deed& deed);

/// Whether the search goes on. Typing doesn't end one that only opens a directory.
bool searchGoesOn(const Situation& situation);

/// Whether to ask the user, who has wanted to close the window for 30 seconds, if they will wait
/// any longer for the call that is out.
bool callIsOverdue(const Situation& situation, Moment now);

/// What the pointer shows: that the user has to wait, or may go on, since a search can be stopped.
enum class Pointer { Arrow, Wait, ArrowAtWork };
Pointer pointerIn(const Situation& situation);
