#include "driver/input.h"

#include <stdexcept>

#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {
namespace {

HWND EditField(HWND field) {
    HWND inside = FindWindowExW(field, nullptr, L"Edit", nullptr);
    return inside ? inside : field;
}

void Notify(HWND control, WORD notification) {
    Post(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), notification),
         reinterpret_cast<LPARAM>(control));
}

}  // namespace

void TypeInto(HWND field, const std::string& text) {
    HWND edit = EditField(field);
    Send(edit, EM_SETSEL, 0, -1);
    if (text.empty()) Post(edit, WM_CHAR, VK_BACK);
    for (wchar_t character : Wide(text)) Post(edit, WM_CHAR, character);
}

void ChooseLine(HWND comboBox, const std::string& line) {
    const std::wstring wide = Wide(line);
    const LRESULT index = Send(comboBox, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                               reinterpret_cast<LPARAM>(wide.c_str()));
    if (index < 0) throw std::runtime_error("no line \"" + line + "\" to choose");
    Send(comboBox, CB_SETCURSEL, static_cast<WPARAM>(index));
    Notify(comboBox, CBN_SELCHANGE);
}

void OpenLine(HWND list, const std::string& ending) {
    // The list may still be showing what an earlier double click left.
    WaitFor("a line \"" + ending + "\"", [&] {
        const std::vector<std::string> lines = ListLines(list);
        for (size_t i = 0; i < lines.size(); ++i) {
            if (!lines[i].ends_with(ending)) continue;
            Send(list, LB_SETCURSEL, i);
            Notify(list, LBN_DBLCLK);
            return true;
        }
        return false;
    });
}

}  // namespace driver
