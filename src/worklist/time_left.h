#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Tells how long the rest of a list will take, by the median of the last twenty documents: one
/// that took far longer than the others changes nothing.
class TimeLeft {
 public:
    /// A document is done with.
    void took(std::int64_t milliseconds);
    /// Milliseconds for so many documents; nothing before the first one is done with.
    std::optional<std::int64_t> forDocuments(int count) const;

 private:
    std::vector<std::int64_t> last_;
};

/// As the user reads it, rounded as far as it can be known.
std::wstring timeLeftText(std::optional<std::int64_t> milliseconds);
