#include "driver/keys.h"

#include "driver/wait.h"

namespace driver {
namespace {

void Move(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

}  // namespace

void PressKeys(const std::vector<WORD>& keys, int times) {
    for (const WORD key : keys) Move(key, 0);
    for (int i = 1; i < times; ++i) Move(keys.back(), 0);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) Move(*key, KEYEVENTF_KEYUP);
}

void BringForward(HWND window) {
    WaitFor("the window in front", [&] {
        SetForegroundWindow(window);
        return GetForegroundWindow() == window;
    });
}

}  // namespace driver
