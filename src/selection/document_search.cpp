#include "selection/document_search.h"

#include <utility>

#include "platform/files.h"
#include "selection/found_documents.h"

DocumentSearch::DocumentSearch(Files& files, FoundDocuments& found, DocumentKinds kinds,
                               Progress progress)
    : files_(files),
      found_(found),
      kinds_(std::move(kinds)),
      progress_(std::move(progress)),
      open_(files) {}

void DocumentSearch::run(const std::wstring& directory, bool withSubdirectories) {
    const Subdirectories below = collect(directory, false);
    // With no kind to look for there is nothing to find further down.
    if (withSubdirectories && !kinds_.pattern().empty()) walk(directory, below);
}

DocumentSearch::Subdirectories DocumentSearch::collect(const std::wstring& directory, bool append) {
    std::vector<std::wstring> documents;
    Subdirectories subdirectories;
    files_.visit(directory, [&](const DirectoryEntry& entry) {
        if (entry.isLeftOut) return;
        if (entry.isDirectory) {
            subdirectories.push_back({std::wstring(entry.name), entry.isLink});
        } else if (kinds_.accepts(entry.name)) {
            documents.emplace_back(entry.name);
        }
    });
    sortByName(documents);
    sortByName(subdirectories);

    found_.beginPass(append);
    progress_(static_cast<int>(documents.size()));
    for (const std::wstring& name : documents) found_.store(directory, name);
    return subdirectories;
}

void DocumentSearch::walk(const std::wstring& directory, const Subdirectories& subdirectories) {
    open_.enter(directory);
    for (const Subdirectory& subdirectory : subdirectories) {
        const std::wstring path = childPath(directory, subdirectory.name);
        if (subdirectory.isLink && open_.leadsBack(path)) continue;
        walk(path, collect(path, true));
    }
    open_.leave();
}
