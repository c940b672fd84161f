#pragma once

/// What a drop-down box tells its window about its list, and what that comes to. While the list is
/// down, each arrow key is a change of the selection: what is chosen is known when it closes.
/// Windows sends a change before or after the close, as it happens (CBN_CLOSEUP, remarks).
class DropDown {
 public:
    enum class Step {
        Nothing,
        Remember,  ///< what is chosen now: the list goes down
        Act,       ///< another line was chosen
        ActLater,  ///< the same, unless the notification that says so follows by itself
        GoBack     ///< to what was remembered: the user gave up
    };

    /// What a notification comes to; `isDown`: the list is still to be seen.
    Step notified(unsigned code, bool isDown);

 private:
    Step selectionChanged(bool isDown);
    Step closedUp() const;

    bool changed_ = false;
    bool cancelled_ = false;
};
