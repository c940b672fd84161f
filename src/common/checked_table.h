#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "common/runtime_error.h"

/// A table of fixed size. Reaching past it raises subscript out of range (9) with `limit`, which
/// tells the user how much the table can hold. Memory is allocated in pages as entries are written,
/// and entries never move.
template <class Entry, std::size_t Size, const wchar_t* limit>
class CheckedTable {
 public:
    Entry& operator[](std::int64_t index) {
        const std::size_t place = checked(index);
        if (place / kPage >= pages_.size()) pages_.resize(place / kPage + 1);
        std::vector<Entry>& page = pages_[place / kPage];
        if (page.empty()) page.resize(std::min(kPage, Size - place / kPage * kPage));
        return page[place % kPage];
    }

    const Entry& operator[](std::int64_t index) const {
        const std::size_t place = checked(index);
        return isMade(place) ? pages_[place / kPage][place % kPage] : kNew;
    }

    /// Resets the entries from `first` to just before `end`.
    void clear(std::size_t first = 0, std::size_t end = Size) {
        for (std::size_t place = first; place < end; ++place) {
            if (isMade(place)) pages_[place / kPage][place % kPage] = Entry();
        }
    }

 private:
    static constexpr std::size_t kPage = 128;
    inline static const Entry kNew{};

    static std::size_t checked(std::int64_t index) {
        if (index < 0 || static_cast<std::size_t>(index) >= Size) {
            throw errors::subscriptOutOfRange(limit);
        }
        return static_cast<std::size_t>(index);
    }

    bool isMade(std::size_t place) const {
        return place / kPage < pages_.size() && !pages_[place / kPage].empty();
    }

    std::vector<std::vector<Entry>> pages_;
};
