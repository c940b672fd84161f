#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "common/checked_table.h"
#include "pickers/tree_walk.h"

/// Which CAD documents are looked for, from the type text that the user chose or typed.
class DocumentKinds {
 public:
    /// Takes the kinds that the text names anywhere, in any case: sldasm, sldprt, slddrw.
    explicit DocumentKinds(std::wstring_view typeText);

    /// The file pattern: assemblies, parts, drawings, always in this order; empty for no kind.
    const std::wstring& pattern() const { return pattern_; }

    /// Whether a file is looked for, by what follows the last dot of its name, in any case.
    bool accepts(std::wstring_view fileName) const;

 private:
    std::wstring pattern_;
    bool assemblies_ = false;
    bool parts_ = false;
    bool drawings_ = false;
};

/// The rank of a document in a pass ordered by kind: parts, assemblies, drawings, all else.
int kindRank(std::wstring_view document);

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

    /// Empties the table, and sets what its next entries will be.
    void restart(bool fullPaths);

    /// Replaces all entries by these full paths. Raises 9 when they are too many.
    void take(std::vector<std::wstring> paths);

    /// Begins a pass over one directory. Unless it appends, it empties the table but for the very
    /// last entry, which therefore still counts as present.
    void beginPass(bool append);

    /// Stores a document of a directory unless the pass has its bare name already.
    /// Raises 9 when the table is full.
    void store(const std::wstring& directory, std::wstring_view name);

 private:
    bool presentInPass(const std::wstring& entry) const;

    CheckedTable<std::wstring, kCapacity, kLimit> entries_;
    std::unordered_set<std::wstring> pass_;  ///< the bare names found in this pass
    int count_ = 0;
    bool fullPaths_ = false;
};

/// Finds the documents of one directory or of a whole tree. Each directory is read once.
class DocumentSearch {
 public:
    /// Called for each directory with the number of files of these kinds in it.
    using Progress = std::function<void(int filesListed)>;

    DocumentSearch(const SearchServices& services, FoundDocuments& found, DocumentKinds kinds,
                   Progress progress);

    /// Adds the directory's documents to the table, in ascending order of their names, then, if
    /// wanted, those of its sub-directories as walkTree meets them. When it is interrupted, the
    /// table keeps what was found so far. Raises 70 or 76 for a directory that can't be read, 9
    /// when the table is full.
    WalkEnd run(const std::wstring& directory, bool withSubdirectories);

 private:
    void collect(const std::wstring& directory, const std::vector<std::wstring>& documents);

    SearchServices services_;
    FoundDocuments& found_;
    DocumentKinds kinds_;
    Progress progress_;
};
