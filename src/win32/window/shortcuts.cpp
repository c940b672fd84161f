#include "win32/window/shortcuts.h"

#include <algorithm>

#include "input/sign_key.h"
#include "win32/window/input_messages.h"
#include "win32/window/list_keys.h"

namespace {

constexpr wchar_t kProperty[] = L"Tarnwick.Shortcuts";

/// Keys held down repeat themselves; a command is meant once.
bool isFreshKey(const MSG& message) {
    return isKeyDown(message.message) && (HIWORD(message.lParam) & KF_REPEAT) == 0;
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

std::vector<ACCEL> entriesOf(HACCEL table) {
    std::vector<ACCEL> entries(static_cast<std::size_t>(CopyAcceleratorTableW(table, nullptr, 0)));
    CopyAcceleratorTableW(table, entries.data(), static_cast<int>(entries.size()));
    return entries;
}

bool isSign(const ACCEL& entry) { return (entry.fVirt & FVIRTKEY) == 0; }

bool isPressedBy(const ACCEL& entry, const PressedKey& pressed) {
    if (isSign(entry)) {
        const auto key = VkKeyScanExW(static_cast<wchar_t>(entry.key), GetKeyboardLayout(0));
        return pressesSign(pressed, key);
    }
    return pressed == PressedKey{.key = entry.key,
                                 .shift = (entry.fVirt & FSHIFT) != 0,
                                 .control = (entry.fVirt & FCONTROL) != 0,
                                 .alt = (entry.fVirt & FALT) != 0};
}

const WindowShortcuts* shortcutsOf(HWND window) {
    return static_cast<const WindowShortcuts*>(GetPropW(window, kProperty));
}

}  // namespace

WindowShortcuts::WindowShortcuts(HWND window, int dialogId)
    : window_(window),
      table_(LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogId))),
      entries_(entriesOf(table_.get())) {
    SetPropW(window, kProperty, this);
}

WindowShortcuts::~WindowShortcuts() { RemovePropW(window_, kProperty); }

int WindowShortcuts::controlOf(const MSG& message) const {
    const PressedKey pressed = pressedKey(message);
    const auto entry = std::ranges::find_if(
        entries_, [&](const ACCEL& candidate) { return isPressedBy(candidate, pressed); });
    return entry == entries_.end() ? 0 : entry->cmd;
}

// Windows itself knows nothing of signs.
bool WindowShortcuts::translate(MSG& message) const {
    if (table_ && TranslateAcceleratorW(window_, table_.get(), &message) != 0) return true;
    const int control = controlOf(message);
    if (control == 0) return false;
    constexpr WORD kFromShortcut = 1;
    SendMessageW(window_, WM_COMMAND, MAKEWPARAM(control, kFromShortcut), 0);
    return true;
}

int shortcutIn(HWND window, const MSG& message) {
    const WindowShortcuts* shortcuts = shortcutsOf(window);
    return shortcuts && isKeyDown(message.message) ? shortcuts->controlOf(message) : 0;
}

bool translateShortcut(HWND window, MSG& message) {
    if (!isFreshKey(message)) return false;
    if (isSelectAll(message) && selectAllLines(message.hwnd)) return true;
    const WindowShortcuts* shortcuts = shortcutsOf(window);
    return shortcuts && shortcuts->translate(message);
}
