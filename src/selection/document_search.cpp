#include "selection/document_search.h"

#include <utility>

#include "selection/found_documents.h"

DocumentSearch::DocumentSearch(const SearchServices& services, FoundDocuments& found,
                               DocumentKinds kinds, Progress progress)
    : services_(services),
      found_(found),
      kinds_(std::move(kinds)),
      progress_(std::move(progress)) {}

WalkEnd DocumentSearch::run(const std::wstring& directory, bool withSubdirectories) {
    // With no kind to look for there is nothing to find further down.
    const bool deep = withSubdirectories && !kinds_.pattern().empty();
    return walkTree(
        services_, directory, deep,
        [kinds = kinds_](std::wstring_view name) { return kinds.accepts(name); },
        [this](const std::wstring& path, const std::vector<std::wstring>& documents) {
            collect(path, documents);
        });
}

void DocumentSearch::collect(const std::wstring& directory,
                             const std::vector<std::wstring>& documents) {
    found_.beginPass(true);
    progress_(static_cast<int>(documents.size()));
    for (const std::wstring& name : documents) found_.store(directory, name);
}
