#include "common/text_decoding.h"

#include <string_view>

#include "common/code_page.h"
#include "common/plain_text.h"
#include "common/text.h"
#include "common/utf8.h"
#include "common/utf8_check.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleEndianMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianMark = "\xFE\xFF";
constexpr char32_t kReplacement = 0xFFFD;

bool isUtf8(std::string_view bytes) {
    return isPlain(bytes) || wellFormedLength(bytes) == bytes.size();
}

void appendCharacter(std::string& utf8, char32_t character) {
    const auto put = [&](char32_t bits) { utf8 += static_cast<char>(bits); };
    const auto putLow = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        putLow(0);
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        putLow(6);
        putLow(0);
    } else {
        put(0xF0 | (character >> 18));
        putLow(12);
        putLow(6);
        putLow(0);
    }
}

std::string withReplacements(std::string_view bytes) {
    std::string utf8;
    while (true) {
        const std::size_t good = wellFormedLength(bytes);
        utf8 += bytes.substr(0, good);
        bytes.remove_prefix(good);
        if (bytes.empty()) return utf8;
        appendCharacter(utf8, kReplacement);
        bytes.remove_prefix(illFormedLength(bytes));
    }
}

/// The units of UTF-16 in some bytes, one after the other. Half a one is no character.
class Units {
 public:
    Units(std::string_view bytes, bool bigEndian) : bytes_(bytes), bigEndian_(bigEndian) {}

    bool empty() const { return bytes_.empty(); }

    char32_t take() {
        const char32_t unit = first();
        bytes_.remove_prefix(bytes_.size() < 2 ? 1 : 2);
        return unit;
    }

    /// The next unit, or 0 when there is none.
    char32_t first() const {
        if (bytes_.size() < 2) return bytes_.empty() ? 0 : kReplacement;
        const auto byte = [&](std::size_t i) -> char32_t {
            return static_cast<unsigned char>(bytes_[i]);
        };
        return bigEndian_ ? byte(0) << 8 | byte(1) : byte(1) << 8 | byte(0);
    }

 private:
    std::string_view bytes_;
    bool bigEndian_;
};

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

char32_t takeCharacter(Units& units) {
    const char32_t unit = units.take();
    if (isHighSurrogate(unit) && isLowSurrogate(units.first())) {
        return 0x10000 + ((unit & 0x3FF) << 10) + (units.take() & 0x3FF);
    }
    return isHighSurrogate(unit) || isLowSurrogate(unit) ? kReplacement : unit;
}

std::string fromUtf16(std::string_view bytes, bool bigEndian) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (Units units(bytes, bigEndian); !units.empty();) {
        appendCharacter(utf8, takeCharacter(units));
    }
    return utf8;
}

std::string lineByLine(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::string_view from = bytes;
        const std::string_view line = takeLine(bytes);
        if (isUtf8(line)) {
            utf8 += line;
        } else {
            appendUtf8(utf8, codePageText(line));
        }
        utf8 += from.substr(line.size(), from.size() - line.size() - bytes.size());
    }
    return utf8;
}

}  // namespace

std::string textInUtf8(std::string bytes) {
    const std::string_view view = bytes;
    if (view.starts_with(kUtf16LittleEndianMark)) return fromUtf16(view.substr(2), false);
    if (view.starts_with(kUtf16BigEndianMark)) return fromUtf16(view.substr(2), true);
    if (view.starts_with(kUtf8Mark)) return withReplacements(view.substr(kUtf8Mark.size()));
    if (!isUtf8(view)) return lineByLine(view);
    return bytes;
}
