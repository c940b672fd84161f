#include "common/utf8.h"

#include <windows.h>

#include <algorithm>

#include "common/plain_text.h"
#include "common/runtime_error.h"

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
    constexpr std::size_t kMostBytes = 3;  // of a unit of UTF-16
    utf8.resize(before + kMostBytes * text.size());
    const int size = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(),
                                         static_cast<int>(text.size()), utf8.data() + before,
                                         static_cast<int>(utf8.size() - before), nullptr, nullptr);
    if (size == 0) throw errors::unwritableText();
    utf8.resize(before + static_cast<std::size_t>(size));
}
