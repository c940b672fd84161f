#include "common/text.h"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cwchar>
#include <cwctype>

#include "common/encoding.h"
#include "common/runtime_error.h"

namespace {

/// A locale that knows the case of all letters, as Windows does.
locale_t letters() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

}  // namespace

void makeUpperCase(std::wstring& text) {
    for (wchar_t& c : text) c = static_cast<wchar_t>(towupper_l(static_cast<wint_t>(c), letters()));
}

namespace {

/// The characters of the bytes 0x80 to 0x9F in Windows-1252; all others are Latin-1's. Bytes that
/// it doesn't define are control characters, as for Windows.
constexpr wchar_t kUpperControls[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t characterOf(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 && value <= 0x9F ? kUpperControls[value - 0x80] : value;
}

}  // namespace

std::wstring codePageText(std::string_view bytes) {
    std::wstring text(bytes.size(), L'\0');
    std::ranges::transform(bytes, text.begin(), characterOf);
    return text;
}

namespace {

/// While it lives, the C library's multibyte characters are UTF-8.
class InUtf8 {
 public:
    InUtf8() : previous_(uselocale(utf8())) {}
    ~InUtf8() { uselocale(previous_); }
    InUtf8(const InUtf8&) = delete;
    InUtf8& operator=(const InUtf8&) = delete;

 private:
    static locale_t utf8() {
        static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        return locale;
    }

    locale_t previous_;
};

}  // namespace

std::wstring wideText(std::string_view utf8) {
    const InUtf8 locale;
    std::wstring text;
    while (!utf8.empty()) {
        std::mbstate_t state{};
        wchar_t character = 0;
        const std::size_t length = std::mbrtowc(&character, utf8.data(), utf8.size(), &state);
        text += character;
        utf8.remove_prefix(character == 0 ? 1 : length);
    }
    return text;
}

void appendUtf8(std::string& utf8, std::wstring_view text) {
    const InUtf8 locale;
    for (const wchar_t character : text) {
        std::mbstate_t state{};
        char bytes[MB_LEN_MAX];
        const std::size_t length = std::wcrtomb(bytes, character, &state);
        if (length > sizeof bytes) throw errors::unwritableText();
        utf8.append(bytes, length);
    }
}
