#include "platform/win32/text_encoding.h"

#include <windows.h>

#include "platform/runtime_error.h"

namespace {

/// The system's own code page: GetACP would name UTF-8, which our manifest asks for.
UINT systemCodePage() {
    DWORD codePage = 0;
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<LPWSTR>(&codePage), sizeof codePage / sizeof(wchar_t));
    constexpr UINT kWesternEurope = 1252;
    return codePage == 0 || codePage == CP_UTF8 ? kWesternEurope : codePage;
}

std::wstring decode(UINT codePage, DWORD flags, std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(codePage, flags, bytes.data(), length, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(codePage, flags, bytes.data(), length, text.data(), size);
    return text;
}

}  // namespace

std::wstring decodeText(std::string_view bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
    if (bytes.empty()) return {};
    std::wstring text = decode(CP_UTF8, MB_ERR_INVALID_CHARS, bytes);
    return text.empty() ? decode(systemCodePage(), 0, bytes) : text;
}

std::string encodeText(std::wstring_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), length,
                                         nullptr, 0, nullptr, nullptr);
    if (size == 0) throw errors::unwritableText();
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), length, bytes.data(), size,
                        nullptr, nullptr);
    return bytes;
}
