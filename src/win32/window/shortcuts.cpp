#include "win32/window/shortcuts.h"

#include "input/sign_key.h"
#include "win32/window/list_keys.h"

namespace {

constexpr wchar_t kProperty[] = L"Tarnwick.Shortcuts";

/// Keys held down repeat themselves; a command is meant once.
bool isFreshKey(const MSG& message) {
    const bool pressed = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    const bool repeated = (HIWORD(message.lParam) & KF_REPEAT) != 0;
    return pressed && !repeated;
}

bool isDown(int key) { return GetKeyState(key) < 0; }

PressedKey pressedKey(const MSG& message) {
    return {.key = static_cast<int>(message.wParam),
            .shift = isDown(VK_SHIFT),
            .control = isDown(VK_CONTROL),
            .alt = isDown(VK_MENU)};
}

bool isSelectAll(const MSG& message) {
    return pressedKey(message) == PressedKey{.key = 'A', .control = true};
}

std::vector<ACCEL> signsIn(HACCEL table) {
    std::vector<ACCEL> entries(static_cast<std::size_t>(CopyAcceleratorTableW(table, nullptr, 0)));
    CopyAcceleratorTableW(table, entries.data(), static_cast<int>(entries.size()));
    std::erase_if(entries, [](const ACCEL& entry) { return (entry.fVirt & FVIRTKEY) != 0; });
    return entries;
}

}  // namespace

WindowShortcuts::WindowShortcuts(HWND window, int dialogId)
    : window_(window),
      table_(LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogId))),
      signs_(signsIn(table_.get())) {
    SetPropW(window, kProperty, this);
}

WindowShortcuts::~WindowShortcuts() { RemovePropW(window_, kProperty); }

bool WindowShortcuts::translate(MSG& message) const {
    if (table_ && TranslateAcceleratorW(window_, table_.get(), &message) != 0) return true;
    const PressedKey pressed = pressedKey(message);
    for (const ACCEL& sign : signs_) {
        const auto key = VkKeyScanExW(static_cast<wchar_t>(sign.key), GetKeyboardLayout(0));
        if (!pressesSign(pressed, key)) continue;
        constexpr WORD kFromShortcut = 1;
        SendMessageW(window_, WM_COMMAND, MAKEWPARAM(sign.cmd, kFromShortcut), 0);
        return true;
    }
    return false;
}

bool translateShortcut(HWND window, MSG& message) {
    if (!isFreshKey(message)) return false;
    if (isSelectAll(message) && selectAllLines(message.hwnd)) return true;
    const auto* shortcuts = static_cast<const WindowShortcuts*>(GetPropW(window, kProperty));
    return shortcuts && shortcuts->translate(message);
}
