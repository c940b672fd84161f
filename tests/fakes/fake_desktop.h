#pragma once

#include <map>
#include <string>
#include <vector>

#include "ports/machine.h"

/// Knows windows by their titles and records what is brought forward.
struct FakeDesktop : Desktop {
    std::map<std::wstring, WindowHandle> windows;
    std::vector<WindowHandle> broughtForward;
    std::vector<WindowHandle> restored;
    std::wstring openable;
    std::map<WindowHandle, int> gdiObjectsOf;  ///< of their programs

    WindowHandle findWindow(const std::wstring& title) override {
        return windows.contains(title) ? windows[title] : 0;
    }
    WindowHandle findWindow(const std::function<bool(const std::wstring&)>& isTitle) override {
        for (const auto& [title, window] : windows) {
            if (isTitle(title)) return window;
        }
        return 0;
    }
    void restore(WindowHandle window) override { restored.push_back(window); }
    void bringToFront(WindowHandle window) override { broughtForward.push_back(window); }
    std::optional<int> gdiObjects(WindowHandle window) override {
        return gdiObjectsOf.contains(window) ? std::optional(gdiObjectsOf[window]) : std::nullopt;
    }
    bool open(const std::wstring& document) override { return document == openable; }
};
