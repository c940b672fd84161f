#include "win32/window/win_message_boxes.h"

#include <windows.h>

#include "rules/boxes_and_buttons.h"
#include "win32/process/unique.h"
#include "win32/window/modal_question.h"

namespace {

/// Gives a message box French buttons, whatever the language of the system, when it opens.
class FrenchButtons {
 public:
    FrenchButtons() : hook_(SetWindowsHookExW(WH_CBT, onCbt, nullptr, GetCurrentThreadId())) {}

 private:
    static LRESULT CALLBACK onCbt(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_ACTIVATE) translate(reinterpret_cast<HWND>(wParam));
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static void translate(HWND box) {
        wchar_t className[16] = {};
        GetClassNameW(box, className, ARRAYSIZE(className));
        if (lstrcmpW(className, L"#32770") != 0) return;
        const bool retry = GetDlgItem(box, IDRETRY);
        for (int id = IDOK; id <= IDNO; ++id) {
            const wchar_t* caption = frenchCaption(static_cast<MessageBoxes::Answer>(id), retry);
            if (caption && GetDlgItem(box, id)) SetDlgItemTextW(box, id, caption);
        }
    }

    // Without it the buttons speak the language of the system, which is better than no box.
    UniqueHook hook_;
};

DWORD styleOf(const MessageBoxContent& box) {
    const int defaultButton = (box.defaultButton - 1) * MB_DEFBUTTON2;
    return static_cast<DWORD>(static_cast<int>(box.buttons) | static_cast<int>(box.icon) |
                              defaultButton) |
           MB_SETFOREGROUND;
}

}  // namespace

MessageBoxes::Answer WinMessageBoxes::show(const MessageBoxContent& box) {
    const ModalQuestion question(judge_);
    const std::wstring text = withBoundQuotes(box.text);
    MSGBOXPARAMSW parameters{};
    parameters.cbSize = sizeof parameters;
    parameters.hwndOwner = question.owner();
    parameters.lpszText = text.c_str();
    parameters.lpszCaption = box.title.c_str();
    parameters.dwStyle = styleOf(box) | (question.topmost() ? MB_TOPMOST : 0);
    parameters.dwContextHelpId = static_cast<DWORD>(box.helpContext);
    const FrenchButtons french;
    const int button = MessageBoxIndirectW(&parameters);
    return box.buttons == MessageBoxContent::Buttons::Ok ? Answer::Ok : static_cast<Answer>(button);
}
