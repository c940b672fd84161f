#pragma once

#include <cstdint>
#include <optional>

/// What an event goes back to, when it is a command.
struct PressVerdict {
    bool pressed = false;      ///< a person pressed something
    bool late = false;         ///< before the last command was at its end
    bool repeated = false;     ///< a key that is held
    bool second = false;       ///< the second press of a double click
    bool onNewWindow = false;  ///< that, and a window came up since the first one

    bool operator==(const PressVerdict&) const = default;
};

/// Whether a press starts a command. `busy`: another one is at work.
bool startsCommand(const PressVerdict& press, bool takesSecondPress, bool busy);

/// Tells which presses are commands and which are not meant: those made while the program was at
/// work, held keys, and the second press of a double click. It judges by the time at which a
/// person pressed, whenever the press is taken from the queue.
///
/// Times are milliseconds since the system started, as 32 bits, which may wrap around (the
/// GetMessageTime and GetTickCount functions).
class PressJudge {
 public:
    using Time = std::uint32_t;

    /// What makes two presses a double click: the system's own limits.
    struct Limits {
        Time time = 500;
        std::int32_t width = 4;   ///< pixels
        std::int32_t height = 4;  ///< pixels
    };

    explicit PressJudge(const Limits& limits) : limits_(limits) {}

    // The input as it is taken from the queue. What follows of an input belongs to it until the
    // next one, or until `nothing`.

    /// A mouse button, a pen or a finger goes down at this place of the screen.
    void press(Time time, std::int32_t x, std::int32_t y);
    /// What will be said of such a press.
    PressVerdict foreseen(Time time, std::int32_t x, std::int32_t y) const;
    /// It goes up again.
    void release() { current_ = mouse_; }
    void keyDown(Time time, int key, bool repeated);
    void keyUp(Time time, int key);
    /// What follows comes from no input: from a program, or from time.
    void nothing() { current_.reset(); }

    // What the program does.

    /// It was at work until now.
    void workEnded(Time now) { worked_ = now; }
    /// A window has come up. What was pressed before was not meant for it.
    void windowShown(Time now) { worked_ = shown_ = now; }

    /// Of the input that is being handled.
    PressVerdict verdict() const;

 private:
    struct Press {
        Time time = 0;
        std::int32_t x = 0;
        std::int32_t y = 0;
        bool repeated = false;
        bool second = false;
        bool onNewWindow = false;
    };

    Press judged(Time time, std::int32_t x, std::int32_t y) const;
    bool isSecond(const Press& press) const;
    PressVerdict verdictOf(const Press& press) const;

    Limits limits_;
    std::optional<Press> current_;
    std::optional<Press> mouse_;  ///< the last one of mouse, pen or finger
    std::optional<Press> key_;    ///< the last key that went down
    int keyDown_ = 0;
    std::optional<Time> keyUp_;
    std::optional<Time> worked_;
    std::optional<Time> shown_;
};
