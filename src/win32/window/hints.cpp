#include "win32/window/hints.h"

#include <commctrl.h>
#include <oleacc.h>
#include <string>

#include "win32/com/com_ptr.h"

namespace {

// Defined by UIAutomationCoreApi.h for programs that link with that library.
constexpr GUID kLiveSetting = {
    0xc12bcd8e, 0x2a8e, 0x4950, {0x8a, 0xe7, 0x36, 0x25, 0x11, 0x1d, 0x58, 0xeb}};

/// What Active Accessibility is told of a window beyond what it finds out by itself.
class Annotations {
 public:
    Annotations() {
        CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                         services_.putVoid());
    }

    void set(HWND window, const MSAAPROPID& property, LONG value) {
        VARIANT variant{};
        variant.vt = VT_I4;
        variant.lVal = value;
        if (services_) services_->SetHwndProp(window, kClient, CHILDID_SELF, property, variant);
    }
    void set(HWND window, const MSAAPROPID& property, const wchar_t* text) {
        if (services_) services_->SetHwndPropStr(window, kClient, CHILDID_SELF, property, text);
    }

 private:
    static constexpr auto kClient = static_cast<DWORD>(OBJID_CLIENT);

    ComPtr<IAccPropServices> services_;
};

}  // namespace

HWND addTooltips(HWND window, std::span<const Tooltip> tooltips) {
    if (tooltips.empty()) return nullptr;
    HWND tips =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                        WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, nullptr, nullptr);
    for (const Tooltip& tooltip : tooltips) {
        std::wstring text = tooltip.text;
        TOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = window;
        tool.uId = reinterpret_cast<UINT_PTR>(GetDlgItem(window, tooltip.controlId));
        tool.lpszText = text.data();
        SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    return tips;
}

void fitTooltips(HWND tips, HFONT font, int dpi) {
    constexpr int kWidestTip = 400;  // beyond that a text breaks over several lines
    SendMessageW(tips, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    SendMessageW(tips, TTM_SETMAXTIPWIDTH, 0, MulDiv(kWidestTip, dpi, USER_DEFAULT_SCREEN_DPI));
}

void relayToTooltips(HWND tips, HWND control, UINT mouseMessage) {
    MSG message{};
    message.hwnd = control;
    message.message = mouseMessage;
    const DWORD position = GetMessagePos();
    message.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    POINT inside = message.pt;
    ScreenToClient(control, &inside);
    message.lParam = MAKELPARAM(inside.x, inside.y);
    SendMessageW(tips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}

void tellScreenReaders(HWND window, std::span<const AccessibleName> names, int liveId) {
    Annotations annotations;
    // Windows derives the role from the window class, and doesn't know ours.
    annotations.set(window, PROPID_ACC_ROLE, ROLE_SYSTEM_DIALOG);
    for (const AccessibleName& name : names) {
        annotations.set(GetDlgItem(window, name.controlId), PROPID_ACC_NAME, name.text);
    }
    // Read out once the screen reader has finished its sentence: LiveSetting's "polite".
    constexpr LONG kPolite = 1;
    if (liveId != 0) annotations.set(GetDlgItem(window, liveId), kLiveSetting, kPolite);
}

void announceChange(HWND label) {
    NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, label, OBJID_CLIENT, CHILDID_SELF);
}
