#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "common/checked_table.h"

/// State codes of a line, compared as exact texts.
namespace state {
inline constexpr wchar_t kToDo[] = L"0";
inline constexpr wchar_t kDone[] = L"1";
inline constexpr wchar_t kSeen[] = L"2";
inline constexpr wchar_t kInProgress[] = L"3";
}  // namespace state

/// One document of the pass.
struct WorkLine {
    std::wstring code;
    std::wstring_view path;  ///< full path; stands in one of the list's texts
    std::wstring reload;     ///< "1" when the list file carried the code plus 10, else empty
};

/// The ordered list of documents of a pass, each with its state.
struct WorkList {
    static constexpr long kCapacity = 8001;

    WorkList() = default;
    /// Not copied: the copy's paths would stand in this one's texts.
    WorkList(WorkList&&) = default;
    WorkList& operator=(WorkList&&) = default;

    CheckedTable<WorkLine, kCapacity> EtatFich;
    std::int16_t DerFich = 0;  ///< index of the last line in use; the lines above it are stale

    /// What was read of the list file: thousands of paths at the cost of a few texts. A deque,
    /// whose elements stay where they are.
    std::deque<std::wstring> texts;

    int lineCount() const { return DerFich + 1; }
};
