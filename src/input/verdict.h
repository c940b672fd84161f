#pragma once

#include <cstdint>
#include <optional>

#include "ports/window.h"

/// Milliseconds since the system started.
using Moment = std::uint64_t;

/// What a person pressed: a mouse button, a pen, a finger or a key, when and where.
struct Press {
    Moment time = 0;
    std::int32_t x = 0;        ///< pixels of the screen; 0 for keys
    std::int32_t y = 0;        ///< the same
    bool repeated = false;     ///< by a key that is held
    bool second = false;       ///< the second press of a double click
    bool onNewWindow = false;  ///< that, and a window came up since the first one
};

/// What the program is busy with and what the user did last: all that decides whether something
/// counts.
struct Situation {
    /// The later ones replace the earlier ones, but the end of the program stands.
    enum class Wish { None, Stop, Restart, Reopen, EndProgram };

    // What is out.
    bool handling = false;               ///< a handler runs
    int callsOut = 0;                    ///< calls to another program that have not returned
    std::optional<Moment> closeAsked{};  ///< when the frame asked to close during one of them

    // What is shown.
    int questions = 0;               ///< boxes and dialogs of the system that wait for an answer
    std::optional<Moment> shown{};   ///< when a window or a box came up last
    std::optional<Moment> worked{};  ///< until when a call or a search kept the user waiting

    // What is searched.
    const EventSink* searching = nullptr;    ///< the window that does
    bool opening = false;                    ///< it only opens a directory or a drive
    bool alone = false;                      ///< it searches nothing: its pass goes on alone
    std::optional<Moment> searchingSince{};  ///< the first of those that replaced one another
    Wish wish = Wish::None;                  ///< what the user wants of the search

    /// What the message or event that is handled now goes back to, if a person pressed something.
    std::optional<Press> press{};
};

/// What someone does, as a message tells it or as a window understands it.
struct Deed {
    enum class Kind {
        // Messages as they are taken from the queue.
        Press,       ///< a mouse button, a pen or a finger goes down
        FramePress,  ///< the same outside a client area: on a window's frame or a scroll bar
        Release,     ///< it goes up
        Menu,        ///< the right button goes up, which opens one
        Key,         ///< goes down
        KeyUp,
        HotKey,  ///< a key that acts in front of all programs goes down
        Typed,   ///< the character that a key writes
        Scroll,  ///< wheels and gestures
        Click,   ///< of a control, posted by a program
        Other,
        // What a window is about to do.
        Activate,  ///< because the mouse was pressed in it
        OpenMenu,  ///< its system menu, by the mouse
        Aside,     ///< help, or a menu by the right button
        Command,   ///< a button, an item of a menu, a double click, Enter
        HotKeyCommand,
        // Events at the gate.
        Event,
        WaitedEvent  ///< another handler has ended meanwhile
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
    bool withAlt = false;   ///< a key of the system: it goes down while Alt is held

    const EventSink* window = nullptr;  ///< whose event it is
    bool closes = false;                ///< the window's frame asks to be closed
    DuringSearch duringSearch = DuringSearch::Drop;
    bool takesSecond = true;   ///< the second press of a double click is a command like the first
    bool fromProgram = false;  ///< sent by another program, whatever was pressed last
    bool usable = true;        ///< the user can see and use what it is done to
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
    Restarts,     ///< counts once the search has ended, which it does at once
    EndsProgram
};

/// Whether a deed counts now: a press, a key or another message, a command, an event that is new
/// or has waited. The one place where that is decided.
Verdict verdictOn(const Situation& situation, const Deed& deed);

/// Whether the search goes on. What only opens a directory is not ended by what is typed.
bool searchGoesOn(const Situation& situation);

/// Whether the user, who asked to close the window 30 seconds ago while a call was out, is to be
/// asked whether to wait any longer for it.
bool callIsOverdue(const Situation& situation, Moment now);

/// What the pointer shows: that the user has to wait, or may, since a search can be stopped.
enum class Pointer { Arrow, Wait, ArrowAtWork };
Pointer pointerIn(const Situation& situation);
