#pragma once

/// The button that a window has on the taskbar.
class TaskbarButton {
 public:
    virtual ~TaskbarButton() = default;
    /// Steps done of all; 0 of 0 removes it.
    virtual void showProgress(int done, int total) = 0;
};

/// How far the work has come, told to the taskbar when it changes, but not before the taskbar has
/// made the window's button.
class TaskbarProgress {
 public:
    explicit TaskbarProgress(TaskbarButton& button) : button_(button) {}

    /// Steps done of all; 0 of 0: none.
    void set(int done, int total);
    /// The button is there now, or there again.
    void onButtonMade();

 private:
    TaskbarButton& button_;
    bool buttonMade_ = false;
    int done_ = 0;
    int total_ = 0;
};
