// The least that a program with a window can be: a dialog with a list and twelve buttons. Given a
// file of UTF-16 lines, it fills the list from it.

#include <windows.h>

#include <commctrl.h>

namespace {

INT_PTR CALLBACK procedure(HWND, UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) PostQuitMessage(0);
    return message == WM_INITDIALOG || message == WM_CLOSE;
}

void fill(HWND list, const wchar_t* path) {
    HANDLE file =
        CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    const DWORD size = GetFileSize(file, nullptr);
    auto* text = static_cast<wchar_t*>(
        VirtualAlloc(nullptr, size + sizeof(wchar_t), MEM_COMMIT, PAGE_READWRITE));
    DWORD got = 0;
    ReadFile(file, text, size, &got, nullptr);
    CloseHandle(file);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (wchar_t* line = text; *line;) {
        wchar_t* end = line;
        while (*end != L'\n') ++end;
        *end = 0;
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
        line = end + 1;
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    VirtualFree(text, 0, MEM_RELEASE);
}

wchar_t* unquoted(wchar_t* argument) {
    if (*argument == L'"') ++argument;
    for (wchar_t* end = argument; *end; ++end) {
        if (*end == L'"') *end = 0;
    }
    return argument;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR arguments, int) {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    HWND window = CreateDialogParamW(instance, MAKEINTRESOURCEW(1), nullptr, procedure, 0);
    if (*arguments) fill(GetDlgItem(window, 100), unquoted(arguments));
    ShowWindow(window, SW_SHOW);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageW(window, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
