#include "driver/input.h"

#include <stdexcept>
#include <vector>

#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {
namespace {

HWND editField(HWND field) {
    HWND inside = FindWindowExW(field, nullptr, L"Edit", nullptr);
    return inside ? inside : field;
}

void notify(HWND control, WORD notification) {
    post(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), notification),
         reinterpret_cast<LPARAM>(control));
}

}  // namespace

void typeInto(HWND field, const std::string& text) {
    HWND edit = editField(field);
    send(edit, EM_SETSEL, 0, -1);
    if (text.empty()) post(edit, WM_CHAR, VK_BACK);
    for (wchar_t character : wide(text)) post(edit, WM_CHAR, character);
}

void chooseLine(HWND comboBox, const std::string& line) {
    const std::wstring wideLine = wide(line);
    const LRESULT index = send(comboBox, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                               reinterpret_cast<LPARAM>(wideLine.c_str()));
    if (index < 0) throw std::runtime_error("no line \"" + line + "\" to choose");
    send(comboBox, CB_SETCURSEL, static_cast<WPARAM>(index));
    notify(comboBox, CBN_SELCHANGE);
}

void openLine(HWND list, const std::string& ending) {
    // The list may still show what it did before an earlier double click.
    waitFor("a line \"" + ending + "\"", [&] {
        const std::vector<std::string> lines = listLines(list);
        for (size_t i = 0; i < lines.size(); ++i) {
            if (!lines[i].ends_with(ending)) continue;
            send(list, LB_SETCURSEL, i);
            notify(list, LBN_DBLCLK);
            return true;
        }
        return false;
    });
}

}  // namespace driver
