#pragma once

#include "platform/message_boxes.h"

class WinMessageBoxes : public MessageBoxes {
 public:
    Answer show(const MessageBoxContent& box) override;
};
