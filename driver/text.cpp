#include "driver/text.h"

#include "common/encoding.h"

namespace driver {

std::wstring wide(std::string_view utf8) { return wideText(utf8); }

std::string utf8(std::wstring_view wide) {
    std::string utf8;
    appendUtf8(utf8, wide);
    return utf8;
}

}  // namespace driver
