// Any bytes as a file: what is read is UTF-8, in which a second reading changes nothing; and
// without a mark each line is read as it would be alone.

#include "common/encoding.h"
#include "common/text.h"
#include "fuzz_input.h"

static bool isMarked(std::string_view bytes) {
    return bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFF\xFE") ||
           bytes.starts_with("\xFE\xFF");
}

/// The lines, each read by itself; nothing when one of them looks marked.
static bool readLineByLine(std::string_view bytes, std::string& text) {
    while (!bytes.empty()) {
        const std::string_view from = bytes;
        takeLine(bytes);
        const std::string_view line = from.substr(0, from.size() - bytes.size());
        if (isMarked(line)) return false;
        text += textInUtf8(std::string(line));
    }
    return true;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const std::string text = textInUtf8(bytes);
    require(wellFormedLength(text) == text.size());
    if (!isMarked(text)) require(textInUtf8(text) == text);
    std::string lines;
    if (readLineByLine(bytes, lines)) require(lines == text);
    return 0;
}
