#include "driver/text.h"

#include "common/utf8.h"

namespace driver {

std::wstring Wide(std::string_view utf8) { return wideText(utf8); }

std::string Utf8(std::wstring_view wide) {
    std::string utf8;
    appendUtf8(utf8, wide);
    return utf8;
}

}  // namespace driver
