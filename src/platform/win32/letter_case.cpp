#include "platform/letter_case.h"

#include <windows.h>

std::wstring upperCase(std::wstring_view text) {
    std::wstring result(text);
    CharUpperBuffW(result.data(), static_cast<DWORD>(result.size()));
    return result;
}
