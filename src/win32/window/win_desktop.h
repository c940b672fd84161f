#pragma once

#include "ports/machine.h"

class WinDesktop : public Desktop {
 public:
    WindowHandle findWindow(const std::wstring& title) override;
    WindowHandle findWindow(const std::function<bool(const std::wstring&)>& isTitle) override;
    void restore(WindowHandle window) override;
    void bringToFront(WindowHandle window) override;
    std::optional<int> gdiObjects(WindowHandle window) override;
    bool open(const std::wstring& document) override;
};
