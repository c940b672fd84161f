#pragma once

#include "ports/dialogs.h"

class Judge;

/// Message boxes with French buttons, above the program's active window and modal to all of them.
class WinMessageBoxes : public MessageBoxes {
 public:
    explicit WinMessageBoxes(Judge& judge) : judge_(judge) {}

    Answer show(const MessageBoxContent& box) override;

 private:
    Judge& judge_;
};
