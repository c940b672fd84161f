#include "platform/win32/window/win_desktop.h"

#include <windows.h>

#include <string>

namespace {

std::string inAnsiCodePage(const std::wstring& text) {
    const int size = WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), bytes.data(), size,
                        nullptr, nullptr);
    return bytes;
}

}  // namespace

Desktop::WindowHandle WinDesktop::findWindow(const std::wstring& title) {
    return reinterpret_cast<WindowHandle>(FindWindowA(nullptr, inAnsiCodePage(title).c_str()));
}

void WinDesktop::bringToFront(WindowHandle window) {
    SetForegroundWindow(reinterpret_cast<HWND>(window));
}
