#include "win32/window/win_hot_keys.h"

#include <algorithm>

namespace {

/// The virtual key at this place of the digit row: the row's scan codes follow that of Escape, 1,
/// on every keyboard (the scan codes of set 1).
UINT virtualKey(int place) {
    const UINT key =
        MapVirtualKeyExW(static_cast<UINT>(place + 1), MAPVK_VSC_TO_VK, GetKeyboardLayout(0));
    return key != 0 ? key : static_cast<UINT>('0' + place);
}

bool isDownNow(UINT_PTR key) { return GetAsyncKeyState(static_cast<int>(key)) < 0; }

}  // namespace

std::vector<std::wstring> WinHotKeys::take(HWND window) {
    window_ = window;
    std::vector<std::wstring> refused;
    for (const HotKey& key : keys_) {
        if (!take(key)) refused.emplace_back(key.name);
    }
    if (!refused.empty()) release();
    return refused;
}

bool WinHotKeys::take(const HotKey& key) {
    constexpr UINT kModifiers = MOD_CONTROL | MOD_SHIFT | MOD_NOREPEAT;
    if (!RegisterHotKey(window_, key.controlId, kModifiers, virtualKey(key.place))) return false;
    taken_.push_back(key.controlId);
    return true;
}

void WinHotKeys::release() {
    for (const int id : taken_) UnregisterHotKey(window_, id);
    taken_.clear();
}

bool WinHotKeys::has(int id) const { return std::ranges::find(taken_, id) != taken_.end(); }

bool WinHotKeys::isHeld(UINT key) {
    if (!isDownNow(key)) return false;
    if (key == held_) return true;
    held_ = key;
    SetTimer(window_, key, USER_TIMER_MINIMUM, nullptr);
    return false;
}

void WinHotKeys::onTimer(UINT_PTR key) {
    if (key != held_ || isDownNow(key)) return;
    KillTimer(window_, key);
    held_ = 0;
}
