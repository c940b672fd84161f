#include "common/utf8.h"

#include <climits>
#include <clocale>
#include <cwchar>

#include "common/runtime_error.h"

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
