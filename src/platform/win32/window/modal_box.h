#pragma once

#include <windows.h>

#include <string>

struct ModalBox {
    std::wstring text;
    std::wstring title;
    UINT style = MB_OK;
    DWORD helpContext = 0;
    std::wstring helpFile = {};
};

/// A message box with French buttons, above the program's active window and modal to all of
/// them. Gives the id of the button pressed.
int showModalBox(const ModalBox& box);
