#include "common/encoding.h"

#include <cstdint>
#include <cstring>
#include <string_view>

#include "common/text.h"

namespace {

/// The bytes of one character in UTF-8, or those that could have begun one.
struct Sequence {
    std::size_t length;
    bool wellFormed;
};

/// What the first byte of a longer character says: how many bytes it has, and the range of the
/// second one (The Unicode Standard, table of well-formed UTF-8 byte sequences). Length 0: no
/// character begins so.
struct Lead {
    std::size_t length;
    unsigned char least;
    unsigned char most;
};

Lead leadOf(unsigned char first) {
    if (first < 0xC2 || first > 0xF4) return {0, 0, 0};
    if (first < 0xE0) return {2, 0x80, 0xBF};
    if (first == 0xE0) return {3, 0xA0, 0xBF};
    if (first == 0xED) return {3, 0x80, 0x9F};
    if (first < 0xF0) return {3, 0x80, 0xBF};
    if (first == 0xF0) return {4, 0x90, 0xBF};
    return {4, 0x80, static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF)};
}

Sequence firstSequence(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (byte(0) < 0x80) return {1, true};
    Lead lead = leadOf(byte(0));
    for (std::size_t i = 1; i < lead.length; ++i) {
        if (i == text.size() || byte(i) < lead.least || byte(i) > lead.most) return {i, false};
        lead = {lead.length, 0x80, 0xBF};
    }
    return lead.length == 0 ? Sequence{1, false} : Sequence{lead.length, true};
}

/// Whether the next eight bytes are plain letters.
bool isPlainWord(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return (word & 0x8080808080808080U) == 0;
}

}  // namespace

std::size_t wellFormedLength(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size()) {
        if (end + 8 <= text.size() && isPlainWord(text.data() + end)) {
            end += 8;
            continue;
        }
        const Sequence sequence = firstSequence(text.substr(end));
        if (!sequence.wellFormed) break;
        end += sequence.length;
    }
    return end;
}

std::size_t illFormedLength(std::string_view text) { return firstSequence(text).length; }

namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleEndianBom = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianBom = "\xFE\xFF";
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

/// The units of UTF-16 in some bytes, one after the other. Half a unit at the end is no character.
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
    if (view.starts_with(kUtf16LittleEndianBom)) return fromUtf16(view.substr(2), false);
    if (view.starts_with(kUtf16BigEndianBom)) return fromUtf16(view.substr(2), true);
    if (view.starts_with(kUtf8Bom)) return withReplacements(view.substr(kUtf8Bom.size()));
    if (!isUtf8(view)) return lineByLine(view);
    return bytes;
}
