#pragma once

#include <functional>
#include <string>
#include <vector>

#include "pickers/tree_walk.h"
#include "selection/document_kinds.h"

class FoundDocuments;

/// Finds the documents of one directory or of a whole tree. Each directory is read once.
class DocumentSearch {
 public:
    /// Told, as often as a directory has been read, how many files of the kinds it holds.
    using Progress = std::function<void(int filesListed)>;

    DocumentSearch(const SearchServices& services, FoundDocuments& found, DocumentKinds kinds,
                   Progress progress);

    /// Adds the directory's documents to the table, in ascending name order; then, if wanted,
    /// those of its sub-directories as walkTree meets them. Interrupted leaves there what was found
    /// so far. Raises 70 or 76 for a directory that can't be read, 9 when the table is full.
    WalkEnd run(const std::wstring& directory, bool withSubdirectories);

 private:
    void collect(const std::wstring& directory, const std::vector<std::wstring>& documents);

    SearchServices services_;
    FoundDocuments& found_;
    DocumentKinds kinds_;
    Progress progress_;
};
