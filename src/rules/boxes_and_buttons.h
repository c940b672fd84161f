#pragma once

#include "ports/dialogs.h"
#include "ports/window.h"

/// The French caption of a box's button, whatever the language of the system; nullptr: it keeps its
/// own. A lone button has the id of Cancel, but is an OK button.
const wchar_t* frenchCaption(MessageBoxes::Answer button, bool besideRetry);

/// A box's text with no-break blanks inside « » instead of plain ones, where a line could be
/// broken.
std::wstring withBoundQuotes(std::wstring text);

/// What a window's button on the taskbar shows: steps done of all; 0 of 0 is nothing.
struct ButtonProgress {
    int done = 0;
    int total = 0;
    Alert alert = Alert::None;

    bool operator==(const ButtonProgress&) const = default;
};

/// The button that a window has on the taskbar.
class TaskbarButton {
 public:
    virtual ~TaskbarButton() = default;
    virtual void show(const ButtonProgress& progress) = 0;
};

/// Tells the taskbar how far the work has come, when that changes, but not before the taskbar has
/// made the window's button.
class TaskbarProgress {
 public:
    explicit TaskbarProgress(TaskbarButton& button) : button_(button) {}

    /// Steps done of all; 0 of 0: none.
    void set(int done, int total);
    void set(Alert alert);
    /// The taskbar has made the button, or made it again.
    void onButtonMade();

 private:
    void tell(const ButtonProgress& progress);

    TaskbarButton& button_;
    bool buttonMade_ = false;
    ButtonProgress progress_;
};
