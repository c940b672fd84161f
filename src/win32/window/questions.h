#pragma once

#include <windows.h>

#include <vector>

#include "ports/dialogs.h"

class Judge;

/// While it lives a box or a dialog of the system asks the user something. All windows of the
/// program are disabled but the owner, which the box disables itself. Presses that came before it
/// are not meant for it.
class ModalQuestion {
 public:
    explicit ModalQuestion(Judge& judge);
    ~ModalQuestion();
    ModalQuestion(const ModalQuestion&) = delete;
    ModalQuestion& operator=(const ModalQuestion&) = delete;

    HWND owner() const { return owner_; }
    /// Whether its owner is above the windows of all programs.
    bool topmost() const;

 private:
    Judge& judge_;
    HWND owner_;
    std::vector<HWND> disabled_;
};

/// Message boxes with French buttons, above the program's active window and modal to all of them.
class WinMessageBoxes : public MessageBoxes {
 public:
    explicit WinMessageBoxes(Judge& judge) : judge_(judge) {}

    Answer show(const MessageBoxContent& box) override;

 private:
    Judge& judge_;
};

/// The dialogs of the shell, above the program's active window.
class WinFileDialogs : public FileDialogs {
 public:
    explicit WinFileDialogs(Judge& judge) : judge_(judge) {}

    std::optional<std::wstring> askWhereToSave(const SaveQuestion& question) override;
    std::optional<std::wstring> askWhatToOpen(const OpenQuestion& question) override;

 private:
    Judge& judge_;
};
