#include "common/letter_case.h"

#include <windows.h>

void makeUpperCase(std::wstring& text) {
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
}
