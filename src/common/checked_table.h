#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "common/runtime_error.h"

/// A table of fixed size. Reaching past it raises subscript out of range (9).
template <class Entry, std::size_t Size>
class CheckedTable {
 public:
    CheckedTable() : entries_(Size) {}

    Entry& operator[](std::int64_t index) { return entries_[checked(index)]; }
    const Entry& operator[](std::int64_t index) const { return entries_[checked(index)]; }

 private:
    static std::size_t checked(std::int64_t index) {
        if (index < 0 || static_cast<std::size_t>(index) >= Size) {
            throw errors::subscriptOutOfRange();
        }
        return static_cast<std::size_t>(index);
    }

    std::vector<Entry> entries_;
};
