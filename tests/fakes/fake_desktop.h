#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/desktop.h"

/// Knows windows by their titles and records what is brought forward.
struct FakeDesktop : Desktop {
    std::map<std::wstring, WindowHandle> windows;
    std::vector<WindowHandle> broughtForward;

    WindowHandle findWindow(const std::wstring& title) override {
        const auto window = windows.find(title);
        return window == windows.end() ? 0 : window->second;
    }
    void bringToFront(WindowHandle window) override { broughtForward.push_back(window); }
};
