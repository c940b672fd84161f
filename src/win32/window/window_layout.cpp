#include "win32/window/window_layout.h"

#include <algorithm>

#include "win32/window/combo_boxes.h"
#include "win32/window/focus.h"
#include "win32/window/window_look.h"

namespace {

HFONT fontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

Area areaOf(HWND control) {
    RECT area{};
    // A drop-down is sized together with its list.
    if (classOf(control) == ControlClass::ComboBox) {
        SendMessageW(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&area));
    } else {
        GetWindowRect(control, &area);
    }
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&area), 2);
    return areaOfRect(area);
}

Size clientSize(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

/// The client area that a dialog resource asks for: the window is cut off where it would be larger
/// than the screen (DLGTEMPLATEEX).
Size templateClient(HWND window, int dialogId) {
    constexpr int kWidth = 11;  // in words
    HMODULE module = GetModuleHandleW(nullptr);
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(dialogId), RT_DIALOG);
    const auto* words = static_cast<const short*>(LockResource(LoadResource(module, resource)));
    RECT area{0, 0, words[kWidth], words[kWidth + 1]};
    MapDialogRect(window, &area);
    return {area.right, area.bottom};
}

}  // namespace

WindowLayout::WindowLayout(HWND window, const WindowTemplate& source)
    : window_(window),
      layout_(templateClient(window, source.dialogId), averageCharacter(fontOf(window)),
              source.shrinks) {
    const auto& anchors = source.anchors;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const auto anchor = std::ranges::find(anchors, GetDlgCtrlID(child), &Anchor::controlId);
        const bool anchored = anchor != anchors.end();
        controls_.push_back(child);
        layout_.add(areaOf(child), anchored ? anchor->across : Growth::Stay,
                    anchored ? anchor->down : Growth::Stay);
    }
}

void WindowLayout::measureBy(HFONT font) { layout_.measureBy(averageCharacter(font)); }

Size WindowLayout::withFrame(Size client) const {
    RECT area{0, 0, client.width, client.height};
    AdjustWindowRectExForDpi(&area, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)),
                             GetDpiForWindow(window_));
    return {area.right - area.left, area.bottom - area.top};
}

void WindowLayout::arrange() const {
    const std::vector<Area> areas = layout_.arranged(clientSize(window_));
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const Area& area = areas[i];
        const KeptComboField kept(controls_[i]);
        SetWindowPos(controls_[i], nullptr, area.left, area.top, area.width(), area.height(),
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}
