#pragma once

#include "ports/dialogs.h"

class Judge;

/// The dialogs of the shell, above the program's active window.
class WinFileDialogs : public FileDialogs {
 public:
    explicit WinFileDialogs(Judge& judge) : judge_(judge) {}

    std::optional<std::wstring> askWhereToSave(const SaveQuestion& question) override;
    std::optional<std::wstring> askWhatToOpen(const OpenQuestion& question) override;

 private:
    Judge& judge_;
};
