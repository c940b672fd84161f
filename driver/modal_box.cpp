#include "driver/modal_box.h"

#include <algorithm>

#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {
namespace {

constexpr int kTextId = 0xFFFF;  // of the label that holds a message box's text

bool IsButton(HWND window) {
    const int id = GetDlgCtrlID(window);
    return ClassOf(window) == "Button" && IsWindowVisible(window) && id >= IDOK && id <= IDCONTINUE;
}

// Asks for the picture, too: Wine keeps an empty icon control in boxes without icon.
bool IsIcon(HWND window) {
    return ClassOf(window) == "Static" &&
           (GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON &&
           Send(window, STM_GETICON) != 0;
}

HWND Label(HWND box) {
    for (HWND child : Descendants(box))
        if (static_cast<WORD>(GetDlgCtrlID(child)) == kTextId && !TextOf(child).empty())
            return child;
    return nullptr;
}

bool AnyChild(HWND window, bool (*holds)(HWND)) {
    const std::vector<HWND> children = Descendants(window);
    return std::any_of(children.begin(), children.end(), holds);
}

}  // namespace

bool ModalBox::Is(HWND window) {
    return IsWindowVisible(window) && ClassOf(window) == "#32770" && Label(window) &&
           AnyChild(window, IsButton);
}

std::string ModalBox::Title() const { return TextOf(window_); }

std::string ModalBox::Text() const { return TextOf(Label(window_)); }

std::vector<HWND> ModalBox::ButtonWindows() const {
    std::vector<HWND> buttons = Descendants(window_);
    std::erase_if(buttons, [](HWND child) { return !IsButton(child); });
    return buttons;
}

std::vector<int> ModalBox::Buttons() const {
    std::vector<int> ids;
    for (HWND button : ButtonWindows()) ids.push_back(GetDlgCtrlID(button));
    std::sort(ids.begin(), ids.end());
    if (ids.size() == 1) ids.front() = IDOK;
    return ids;
}

// Asks the buttons: Wine's boxes do not tell DM_GETDEFID which one the caller made the default.
int ModalBox::DefaultButton() const {
    for (HWND button : ButtonWindows())
        if ((Send(button, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON) != 0) return GetDlgCtrlID(button);
    return LOWORD(Send(window_, DM_GETDEFID));
}

bool ModalBox::HasIcon() const { return AnyChild(window_, IsIcon); }

void ModalBox::Answer(int button) const {
    const std::vector<HWND> buttons = ButtonWindows();
    const bool lone = buttons.size() == 1 && button == IDOK;
    Post(lone ? buttons.front() : GetDlgItem(window_, button), BM_CLICK);
    WaitFor("a message box to close", [this] { return !IsWindow(window_); });
}

}  // namespace driver
