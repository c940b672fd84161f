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

/// Plain letters, which most lists hold alone, are the same in every encoding: the system need not
/// convert them.
template <class Character>
bool isPlain(std::basic_string_view<Character> text) {
    unsigned all = 0;
    for (const Character c : text) all |= static_cast<unsigned>(c);
    return (all & ~0x7FU) == 0;
}

bool isUtf8(std::string_view bytes) {
    return isPlain(bytes) || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(),
                                                 static_cast<int>(bytes.size()), nullptr, 0) != 0;
}

void decode(UINT codePage, std::string_view bytes, std::wstring& text) {
    // No encoding has more characters than bytes.
    text.resize(bytes.size());
    if (isPlain(bytes)) {
        std::ranges::copy(bytes, text.begin());
        return;
    }
    const int length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(codePage, 0, bytes.data(), length, text.data(), length);
    text.resize(static_cast<std::size_t>(size));
}

/// Takes a piece off the front: so many bytes, to the next line feed, which is one byte in every
/// encoding.
std::string_view takePiece(std::string_view& rest) {
    constexpr std::size_t kLeast = 1 << 15;
    const std::size_t lineFeed = rest.size() < kLeast ? rest.npos : rest.find('\n', kLeast - 1);
    const std::string_view piece = rest.substr(0, lineFeed == rest.npos ? lineFeed : lineFeed + 1);
    rest.remove_prefix(piece.size());
    return piece;
}

}  // namespace

void decodeText(std::string_view bytes, const TextSink& sink) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
    const UINT codePage = isUtf8(bytes) ? CP_UTF8 : systemCodePage();
    std::wstring text;
    while (!bytes.empty()) {
        decode(codePage, takePiece(bytes), text);
        sink(text);
    }
}

void encodeText(std::wstring_view piece, std::string& bytes) {
    if (isPlain(piece)) {
        bytes.resize(piece.size());
        std::ranges::transform(piece, bytes.begin(),
                               [](wchar_t c) { return static_cast<char>(c); });
        return;
    }
    constexpr std::size_t kMostBytes = 3;  // of a character
    bytes.resize(kMostBytes * piece.size());
    const int size = WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, piece.data(),
                                         static_cast<int>(piece.size()), bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    if (size == 0) throw errors::unwritableText();
    bytes.resize(static_cast<std::size_t>(size));
}
