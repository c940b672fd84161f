#pragma once

#include <functional>
#include <string>
#include <vector>

#include "pickers/directory_listing.h"
#include "pickers/open_directories.h"
#include "selection/document_kinds.h"

class Files;
class FoundDocuments;

/// Finds the documents of one directory or of a whole tree. Each directory is read once.
class DocumentSearch {
 public:
    /// Told, as often as a directory has been read, how many files of the kinds it holds.
    using Progress = std::function<void(int filesListed)>;

    DocumentSearch(Files& files, FoundDocuments& found, DocumentKinds kinds, Progress progress);

    /// Puts the directory's documents into the table, in ascending name order; then, if wanted,
    /// those of its sub-directories depth-first, each directory before its own sub-directories.
    /// A link to a directory that is already open on the way down is passed over.
    /// Raises 70 or 76 for a directory that can't be read, 9 when the table is full.
    void run(const std::wstring& directory, bool withSubdirectories);

 private:
    using Subdirectories = std::vector<Subdirectory>;

    Subdirectories collect(const std::wstring& directory, bool append);
    void walk(const std::wstring& directory, const Subdirectories& subdirectories);

    Files& files_;
    FoundDocuments& found_;
    DocumentKinds kinds_;
    Progress progress_;
    OpenDirectories open_;
};
