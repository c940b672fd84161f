#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "common/checked_table.h"

/// The documents found, in the order of their discovery.
class FoundDocuments {
 public:
    static constexpr int kCapacity = 8001;
    static constexpr wchar_t kLimit[] = L"Documents trouvés : 8001 au plus.";

    int count() const { return count_; }
    /// A bare file name or, when sub-directories are included, a full path.
    const std::wstring& entry(int index) const { return entries_[index]; }

    /// Whether the entries are full paths.
    bool fullPaths() const { return fullPaths_; }

    /// Empties the table and says what its next entries will be.
    void restart(bool fullPaths);

    /// Begins a pass over one directory. Unless it appends, the table is emptied but for its very
    /// last entry, which so still counts as present.
    void beginPass(bool append);

    /// Stores a document of a directory unless the pass has its bare name already.
    /// Raises 9 when the table is full.
    void store(const std::wstring& directory, std::wstring_view name);

 private:
    bool presentInPass(const std::wstring& entry) const;

    CheckedTable<std::wstring, kCapacity, kLimit> entries_;
    std::unordered_set<std::wstring> pass_;  ///< the bare names of the current pass
    int count_ = 0;
    bool fullPaths_ = false;
};
