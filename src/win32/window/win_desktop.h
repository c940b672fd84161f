#pragma once

#include <windows.h>

#include <shobjidl.h>

#include "ports/machine.h"
#include "rules/boxes_and_buttons.h"
#include "win32/com/com_ptr.h"

class WinDesktop : public Desktop {
 public:
    WindowHandle findWindow(const std::wstring& title) override;
    WindowHandle findWindow(const std::function<bool(const std::wstring&)>& isTitle) override;
    void restore(WindowHandle window) override;
    void bringToFront(WindowHandle window) override;
    std::optional<int> gdiObjects(WindowHandle window) override;
    bool open(const std::wstring& document) override;
};

/// A window's button on the taskbar. Shows nothing where the shell has no such buttons.
class WinTaskbarButton : public TaskbarButton {
 public:
    explicit WinTaskbarButton(HWND window);
    void show(const ButtonProgress& progress) override;

    /// The message that the taskbar sends once it has made the button.
    static UINT madeMessage();

 private:
    HWND window_;
    ComPtr<ITaskbarList3> taskbar_;
};
