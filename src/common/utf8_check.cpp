#include "common/utf8_check.h"

#include <cstdint>
#include <cstring>

namespace {

/// The bytes of one character of UTF-8, or as many as could have begun one.
struct Sequence {
    std::size_t length;
    bool wellFormed;
};

/// How a character of more than one byte begins: how many bytes it has and between which values
/// its second lies (The Unicode Standard, table of well-formed UTF-8 byte sequences). No bytes:
/// none begins so.
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

/// Whether the eight bytes that stand there are plain letters.
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
