#pragma once

#include <windows.h>

#include <vector>

class Judge;

/// While it lives a box or a dialog of the system asks the user something: the program waits for
/// its user, and all its windows are disabled but the owner, which the box disables itself. What
/// was pressed before is not meant for it.
class ModalQuestion {
 public:
    explicit ModalQuestion(Judge& judge);
    ~ModalQuestion();
    ModalQuestion(const ModalQuestion&) = delete;
    ModalQuestion& operator=(const ModalQuestion&) = delete;

    HWND owner() const { return owner_; }
    /// Whether its owner stands above the windows of all programs.
    bool topmost() const;

 private:
    Judge& judge_;
    HWND owner_;
    std::vector<HWND> disabled_;
};
