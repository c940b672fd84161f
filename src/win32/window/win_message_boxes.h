#pragma once

#include "ports/message_boxes.h"

/// Message boxes with French buttons, above the program's active window and modal to all of them.
class WinMessageBoxes : public MessageBoxes {
 public:
    Answer show(const MessageBoxContent& box) override;
};
