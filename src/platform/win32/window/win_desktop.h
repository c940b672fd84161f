#pragma once

#include "platform/desktop.h"

class WinDesktop : public Desktop {
 public:
    WindowHandle findWindow(const std::wstring& title) override;
    void bringToFront(WindowHandle window) override;
};
