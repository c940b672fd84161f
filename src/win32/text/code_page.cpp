#include "common/code_page.h"

#include <windows.h>

namespace {

/// The system's own code page: GetACP would name UTF-8, which our manifest asks for.
UINT systemCodePage() {
    DWORD codePage = 0;
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<LPWSTR>(&codePage), sizeof codePage / sizeof(wchar_t));
    constexpr UINT kWesternEurope = 1252;
    return codePage == 0 || codePage == CP_UTF8 ? kWesternEurope : codePage;
}

}  // namespace

std::wstring codePageText(std::string_view bytes) {
    static const UINT codePage = systemCodePage();
    // No code page has more characters than bytes.
    std::wstring text(bytes.size(), L'\0');
    const int length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(codePage, 0, bytes.data(), length, text.data(), length);
    text.resize(static_cast<std::size_t>(size));
    return text;
}
