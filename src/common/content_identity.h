#pragma once

#include <cstdint>
#include <string_view>

/// Tells one content of a file from another, by its length and its hash (Fowler, Noll and Vo's
/// FNV-1a, 64 bits).
class ContentIdentity {
 public:
    ContentIdentity() = default;
    explicit ContentIdentity(std::string_view bytes) { add(bytes); }

    /// The next bytes.
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
