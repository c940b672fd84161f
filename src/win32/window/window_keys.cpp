#include "win32/window/window_keys.h"

#include <algorithm>

#include "input/typed_keys.h"
#include "win32/window/focus.h"
#include "win32/window/message_deed.h"
#include "win32/window/win_controls.h"

namespace {

constexpr wchar_t kProperty[] = L"Tarnwick.Shortcuts";

/// A held key repeats itself, but a command is meant once.
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

/// Windows notifies a window of selections made by its user only: this one counts as such.
void tellSelection(HWND list) {
    SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

/// The virtual key at this place of the digit row, whose scan codes follow Escape's, 1, on every
/// keyboard (scan code set 1).
UINT virtualKey(int place) {
    const UINT key =
        MapVirtualKeyExW(static_cast<UINT>(place + 1), MAPVK_VSC_TO_VK, GetKeyboardLayout(0));
    return key != 0 ? key : static_cast<UINT>('0' + place);
}

bool isDownNow(UINT_PTR key) { return GetAsyncKeyState(static_cast<int>(key)) < 0; }

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

// Windows' own accelerators know nothing of signs.
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

bool selectAllLines(HWND list) {
    if (classOf(list) != ControlClass::ListBox) return false;
    if (!WinListBox(list).severalSelectable()) return false;
    SendMessageW(list, LB_SETSEL, TRUE, -1);
    tellSelection(list);
    return true;
}

bool goToLetter(const MSG& message) {
    if (message.message != WM_CHAR || classOf(message.hwnd) != ControlClass::ListBox) return false;
    WinListBox list(message.hwnd);
    if (list.severalSelectable()) return false;
    const auto current = static_cast<int>(SendMessageW(message.hwnd, LB_GETCURSEL, 0, 0));
    const auto line = lineWithLetter(static_cast<wchar_t>(message.wParam), current, list.count(),
                                     [&](int i) { return list.line(i); });
    if (!line || list.line(*line).front() != L' ') return false;
    list.select(*line, true);
    tellSelection(message.hwnd);
    return true;
}

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
    KillTimer(window_, held_);
    held_ = key;
    SetTimer(window_, key, USER_TIMER_MINIMUM, nullptr);
    return false;
}

void WinHotKeys::onTimer(UINT_PTR key) {
    if (key != held_ || isDownNow(key)) return;
    KillTimer(window_, key);
    held_ = 0;
}
