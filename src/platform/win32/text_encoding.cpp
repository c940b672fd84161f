#include "platform/win32/text_encoding.h"

#include <windows.h>

#include <algorithm>

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
    // No encoding has more characters than bytes.
    std::wstring text(bytes.size(), L'\0');
    const int length = static_cast<int>(bytes.size());
    const int size =
        MultiByteToWideChar(codePage, flags, bytes.data(), length, text.data(), length);
    text.resize(static_cast<std::size_t>(size));
    return text;
}

}  // namespace

std::wstring decodeText(std::string_view bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
    // Plain letters, which most lists hold alone, stand for themselves.
    const bool plain = std::ranges::all_of(bytes, [](char c) { return (c & 0x80) == 0; });
    if (plain) return {bytes.begin(), bytes.end()};
    std::wstring text = decode(CP_UTF8, MB_ERR_INVALID_CHARS, bytes);
    return text.empty() ? decode(systemCodePage(), 0, bytes) : text;
}

std::string encodeText(std::wstring_view text) {
    if (text.empty()) return {};
    const auto beyondAscii = std::ranges::count_if(text, [](wchar_t c) { return c > 0x7F; });
    std::string bytes(text.size() + 2 * static_cast<std::size_t>(beyondAscii), '\0');
    const int size = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(),
                                         static_cast<int>(text.size()), bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    if (size == 0) throw errors::unwritableText();
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}
