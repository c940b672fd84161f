#include "platform/win32/window/win_gate_keeper.h"

#include "platform/win32/window/modal_box.h"

void WinGateKeeper::showFatalError(const std::wstring& text) {
    showModalBox({.text = text, .title = L"Tarnwick", .style = MB_OK | MB_ICONERROR});
}

void WinGateKeeper::quit(int exitCode) { PostQuitMessage(exitCode); }
