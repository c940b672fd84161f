#include "common/text.h"

#include <windows.h>

#include <algorithm>

#include "common/encoding.h"
#include "common/runtime_error.h"

void makeUpperCase(std::wstring& text) {
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
}

namespace {

/// The system's own code page. GetACP would return UTF-8, which our manifest asks for.
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

std::wstring wideText(std::string_view utf8) {
    // No character has more units of UTF-16 than bytes of UTF-8.
    std::wstring text(utf8.size(), L'\0');
    if (isPlain(utf8)) {
        std::ranges::copy(utf8, text.begin());
        return text;
    }
    const int length = static_cast<int>(utf8.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), length);
    text.resize(static_cast<std::size_t>(size));
    return text;
}

void appendUtf8(std::string& utf8, std::wstring_view text) {
    const std::size_t before = utf8.size();
    if (isPlain(text)) {
        utf8.resize(before + text.size());
        std::ranges::transform(text, utf8.begin() + static_cast<std::ptrdiff_t>(before),
                               [](wchar_t c) { return static_cast<char>(c); });
        return;
    }
    constexpr std::size_t kMostBytes = 3;  // for each unit of UTF-16
    utf8.resize(before + kMostBytes * text.size());
    const int size = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(),
                                         static_cast<int>(text.size()), utf8.data() + before,
                                         static_cast<int>(utf8.size() - before), nullptr, nullptr);
    if (size == 0) throw errors::unwritableText();
    utf8.resize(before + static_cast<std::size_t>(size));
}
