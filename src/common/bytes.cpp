#include "common/bytes.h"

#include <array>

namespace {

constexpr std::array<std::uint32_t, 256> crcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1) ^ (value & 1 ? 0xEDB88320U : 0);
        }
        table[i] = value;
    }
    return table;
}

}  // namespace

void appendPacked(std::string& bytes, std::uint64_t number) {
    for (; number >= 0x80; number >>= 7) bytes += static_cast<char>((number & 0x7F) | 0x80);
    bytes += static_cast<char>(number);
}

bool takePacked(std::string_view& bytes, std::uint64_t& number) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < bytes.size() && i < 10; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        value |= static_cast<std::uint64_t>(byte & 0x7F) << (7 * i);
        if (byte & 0x80) continue;
        number = value;
        bytes.remove_prefix(i + 1);
        return true;
    }
    return false;
}

std::uint32_t crc32(std::string_view bytes, std::uint32_t before) {
    static constexpr auto kTable = crcTable();
    std::uint32_t value = ~before;
    for (const char byte : bytes) {
        value = kTable[(value ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (value >> 8);
    }
    return ~value;
}
