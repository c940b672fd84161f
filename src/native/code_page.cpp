#include "common/code_page.h"

#include <algorithm>

namespace {

/// What Windows-1252 spells by the bytes 0x80 to 0x9F; all others are Latin-1. Bytes that it leaves
/// free are control characters, as Windows reads them.
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
