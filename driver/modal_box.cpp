#include "driver/modal_box.h"

#include <algorithm>

#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {
namespace {

constexpr int kTextId = 0xFFFF;  // of the label with a message box's text

bool isButton(HWND window) {
    const int id = GetDlgCtrlID(window);
    return classOf(window) == "Button" && IsWindowVisible(window) && id >= IDOK && id <= IDCONTINUE;
}

// Looks for the picture as well: Wine's boxes without an icon have an empty icon control.
bool isIcon(HWND window) {
    return classOf(window) == "Static" &&
           (GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON &&
           send(window, STM_GETICON) != 0;
}

HWND label(HWND box) {
    for (HWND child : descendants(box)) {
        if (static_cast<WORD>(GetDlgCtrlID(child)) == kTextId && !textOf(child).empty()) {
            return child;
        }
    }
    return nullptr;
}

bool anyChild(HWND window, bool (*holds)(HWND)) {
    const std::vector<HWND> children = descendants(window);
    return std::any_of(children.begin(), children.end(), holds);
}

}  // namespace

bool ModalBox::isOne(HWND window) {
    return IsWindowVisible(window) && classOf(window) == "#32770" && label(window) &&
           anyChild(window, isButton);
}

std::string ModalBox::title() const { return textOf(window_); }

std::string ModalBox::text() const { return textOf(label(window_)); }

std::vector<HWND> ModalBox::buttonWindows() const {
    std::vector<HWND> buttons = descendants(window_);
    std::erase_if(buttons, [](HWND child) { return !isButton(child); });
    return buttons;
}

std::vector<int> ModalBox::buttons() const {
    std::vector<int> ids;
    for (HWND button : buttonWindows()) ids.push_back(GetDlgCtrlID(button));
    std::sort(ids.begin(), ids.end());
    if (ids.size() == 1) ids.front() = IDOK;
    return ids;
}

// Asks the buttons: Wine's boxes do not answer DM_GETDEFID with the caller's default.
int ModalBox::defaultButton() const {
    for (HWND button : buttonWindows()) {
        if ((send(button, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON) != 0) return GetDlgCtrlID(button);
    }
    return LOWORD(send(window_, DM_GETDEFID));
}

bool ModalBox::hasIcon() const { return anyChild(window_, isIcon); }

void ModalBox::answer(int button) const {
    const std::vector<HWND> buttons = buttonWindows();
    const bool lone = buttons.size() == 1 && button == IDOK;
    post(lone ? buttons.front() : GetDlgItem(window_, button), BM_CLICK);
    waitFor("a message box to close", [this] { return !IsWindow(window_); });
}

}  // namespace driver
