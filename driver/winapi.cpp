#include "driver/winapi.h"

#include "driver/text.h"
#include "driver/wait.h"

namespace driver {
namespace {

struct Search {
    DWORD processId;
    std::vector<HWND> found;
};

BOOL CALLBACK AddIfOfProcess(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    if (processId == search.processId) search.found.push_back(window);
    return TRUE;
}

BOOL CALLBACK Add(HWND window, LPARAM parameter) {
    reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    return TRUE;
}

std::string describeOne(HWND window) {
    std::string line = classOf(window) + " " + std::to_string(GetDlgCtrlID(window)) + " \"" +
                       textOf(window) + "\"";
    if (!IsWindowVisible(window)) line += " hidden";
    if (!IsWindowEnabled(window)) line += " disabled";
    return line + "\n";
}

}  // namespace

std::vector<HWND> topLevelWindows(DWORD processId) {
    Search search{processId, {}};
    EnumWindows(AddIfOfProcess, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> descendants(HWND window) {
    std::vector<HWND> found;
    EnumChildWindows(window, Add, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND descendant(HWND window, int id) {
    for (HWND child : descendants(window)) {
        if (GetDlgCtrlID(child) == id) return child;
    }
    return nullptr;
}

std::string classOf(HWND window) {
    wchar_t name[256] = {};
    return utf8({name, static_cast<size_t>(GetClassNameW(window, name, 256))});
}

std::string textOf(HWND window) {
    std::wstring text(static_cast<size_t>(send(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    const LRESULT length =
        send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return utf8(text);
}

LRESULT send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kPatience, &result) &&
        IsWindow(window)) {
        throw TimedOut("a window did not answer message " + std::to_string(message));
    }
    return static_cast<LRESULT>(result);
}

void post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!PostMessageW(window, message, wParam, lParam)) {
        throw std::runtime_error("message " + std::to_string(message) + " could not be posted");
    }
}

RECT placeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

void moveTo(HWND window, int left, int top) {
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

std::vector<std::string> listLines(HWND list) {
    std::vector<std::string> lines;
    const LRESULT count = send(list, LB_GETCOUNT);
    for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
        const LRESULT length = send(list, LB_GETTEXTLEN, i);
        if (length < 0) break;             // the list has become shorter
        constexpr size_t kLongest = 4096;  // the line may be another one by now
        std::wstring line(static_cast<size_t>(length) + kLongest, L'\0');
        send(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line.data()));
        lines.push_back(utf8(line.c_str()));
    }
    return lines;
}

std::vector<int> selectedLines(HWND list) {
    std::vector<int> lines;
    const LRESULT count = send(list, LB_GETCOUNT);
    for (int i = 0; i < count; ++i) {
        if (send(list, LB_GETSEL, static_cast<WPARAM>(i)) > 0) lines.push_back(i);
    }
    return lines;
}

void selectLines(HWND list, const std::vector<int>& lines) {
    if (GetWindowLongW(list, GWL_STYLE) & LBS_EXTENDEDSEL) {
        send(list, LB_SETSEL, FALSE, -1);
        for (int line : lines) send(list, LB_SETSEL, TRUE, line);
    } else {
        send(list, LB_SETCURSEL, static_cast<WPARAM>(lines.empty() ? -1 : lines.back()));
    }
    post(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
         reinterpret_cast<LPARAM>(list));
}

std::string describe(HWND window) {
    std::string text = describeOne(window);
    for (HWND child : descendants(window)) {
        text += "  " + describeOne(child);
        if (classOf(child) != "ListBox") continue;
        for (const std::string& line : listLines(child)) text += "    | " + line + "\n";
    }
    return text;
}

}  // namespace driver
