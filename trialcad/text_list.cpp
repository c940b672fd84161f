#include "text_list.h"

#include <algorithm>

#include "win32/process/handles.h"

namespace {

constexpr LRESULT kMostLines = 1000;

/// Widens the scrolling range, so that a long line can be read to its end.
void makeRoomFor(HWND list, const std::wstring& line) {
    const FontContext context(list, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(context.get(), line.c_str(), static_cast<int>(line.size()), &size);
    const LRESULT width = size.cx + GetSystemMetrics(SM_CXVSCROLL);
    if (width > SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0)) {
        SendMessageW(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width), 0);
    }
}

void add(HWND list, const std::wstring& line) {
    SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    makeRoomFor(list, line);
}

}  // namespace

HWND createTextList(HWND parent, const wchar_t* name) {
    return CreateWindowExW(WS_EX_CLIENTEDGE, L"LISTBOX", name,
                           WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | WS_HSCROLL |
                               LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS,
                           0, 0, 0, 0, parent, nullptr, nullptr, nullptr);
}

void fillTextList(HWND list, const std::wstring& joined) {
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    SendMessageW(list, LB_SETHORIZONTALEXTENT, 0, 0);
    for (size_t start = 0; start < joined.size();) {
        const size_t end = std::min(joined.find(L';', start), joined.size());
        add(list, joined.substr(start, end - start));
        start = end + 1;
    }
}

void appendLine(HWND list, const std::wstring& line) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    if (SendMessageW(list, LB_GETCOUNT, 0, 0) >= kMostLines) {
        SendMessageW(list, LB_DELETESTRING, 0, 0);
    }
    add(list, line);
    showNewestLine(list);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void showNewestLine(HWND list) {
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    if (count > 0) SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(count - 1), 0);
}
