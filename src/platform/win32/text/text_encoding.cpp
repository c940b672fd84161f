#include "platform/win32/text/text_encoding.h"

#include <windows.h>

#include <string_view>

#include "common/utf8.h"
#include "platform/win32/text/plain_text.h"

namespace {

/// The system's own code page: GetACP would name UTF-8, which our manifest asks for.
UINT systemCodePage() {
    DWORD codePage = 0;
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<LPWSTR>(&codePage), sizeof codePage / sizeof(wchar_t));
    constexpr UINT kWesternEurope = 1252;
    return codePage == 0 || codePage == CP_UTF8 ? kWesternEurope : codePage;
}

bool isUtf8(std::string_view bytes) {
    return isPlain(bytes) || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(),
                                                 static_cast<int>(bytes.size()), nullptr, 0) != 0;
}

std::wstring inSystemCodePage(std::string_view bytes) {
    // No code page has more characters than bytes.
    std::wstring text(bytes.size(), L'\0');
    const int length = static_cast<int>(bytes.size());
    const int size =
        MultiByteToWideChar(systemCodePage(), 0, bytes.data(), length, text.data(), length);
    text.resize(static_cast<std::size_t>(size));
    return text;
}

}  // namespace

std::string textInUtf8(std::string bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
    if (isUtf8(bytes)) return bytes;
    std::string utf8;
    appendUtf8(utf8, inSystemCodePage(bytes));
    return utf8;
}
