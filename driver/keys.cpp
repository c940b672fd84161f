#include "driver/keys.h"

#include "driver/wait.h"

namespace driver {
namespace {

void move(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

}  // namespace

void pressKeys(const std::vector<WORD>& keys, int times) {
    for (const WORD key : keys) move(key, 0);
    for (int i = 1; i < times; ++i) move(keys.back(), 0);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) move(*key, KEYEVENTF_KEYUP);
}

void bringForward(HWND window) {
    waitFor("the window in front", [&] {
        SetForegroundWindow(window);
        return GetForegroundWindow() == window;
    });
}

}  // namespace driver
