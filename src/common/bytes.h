#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers as bytes, for files of our own. The `take` functions remove a number from the front, or
// return false and remove nothing when there are too few bytes.

/// A number in as many bytes as its type has, the lowest first.
template <class Number>
void appendFixed(std::string& bytes, Number number) {
    for (unsigned i = 0; i < sizeof number; ++i) {
        bytes += static_cast<char>((number >> (8 * i)) & 0xFF);
    }
}

template <class Number>
bool takeFixed(std::string_view& bytes, Number& number) {
    if (bytes.size() < sizeof number) return false;
    number = 0;
    for (unsigned i = 0; i < sizeof number; ++i) {
        const auto next = static_cast<Number>(static_cast<unsigned char>(bytes[i]));
        number = static_cast<Number>(number | static_cast<Number>(next << (8 * i)));
    }
    bytes.remove_prefix(sizeof number);
    return true;
}

/// A number with one byte for every seven bits that it needs (LEB128).
void appendPacked(std::string& bytes, std::uint64_t number);
bool takePacked(std::string_view& bytes, std::uint64_t& number);

/// A signed number as an unsigned one that is small when the number is near 0.
constexpr std::uint64_t zigzag(std::int64_t number) {
    const auto bits = static_cast<std::uint64_t>(number);
    return (bits << 1) ^ (number < 0 ? ~std::uint64_t{0} : 0);
}
constexpr std::int64_t unzigzag(std::uint64_t bits) {
    return static_cast<std::int64_t>((bits >> 1) ^ (bits & 1 ? ~std::uint64_t{0} : 0));
}

/// The checksum used by zlib and PNG (CRC-32, ISO 3309). `before`: the checksum of preceding bytes.
std::uint32_t crc32(std::string_view bytes, std::uint32_t before = 0);

/// Identifies the content of a file by its length and its hash (Fowler, Noll and Vo's FNV-1a, 64
/// bits).
class ContentIdentity {
 public:
    ContentIdentity() = default;
    explicit ContentIdentity(std::string_view bytes) { add(bytes); }

    /// Adds the next bytes of the content.
    void add(std::string_view bytes) {
        constexpr std::uint64_t kPrime = 0x100000001B3;
        length_ += bytes.size();
        for (const char c : bytes) hash_ = (hash_ ^ static_cast<unsigned char>(c)) * kPrime;
    }

    std::uint64_t length() const { return length_; }
    std::uint64_t hash() const { return hash_; }
    bool operator==(const ContentIdentity&) const = default;

 private:
    std::uint64_t length_ = 0;
    std::uint64_t hash_ = 0xCBF29CE484222325;
};
