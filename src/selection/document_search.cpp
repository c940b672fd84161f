#include "selection/document_search.h"

#include <utility>

#include "platform/files.h"
#include "selection/found_documents.h"

DocumentSearch::DocumentSearch(Files& files, FoundDocuments& found, DocumentKinds motif,
                               Progress progress)
    : files_(files),
      found_(found),
      motif_(std::move(motif)),
      progress_(std::move(progress)),
      open_(files) {}

void DocumentSearch::run(const std::wstring& directory, bool withSubdirectories) {
    const Subdirectories below = CollecterRepertoire(directory, false);
    // With no kind to look for there is nothing to find further down.
    if (withSubdirectories && !motif_.pattern().empty()) ParcourirSousRep(directory, below);
}

DocumentSearch::Subdirectories DocumentSearch::CollecterRepertoire(const std::wstring& RepCourant,
                                                                   bool ajout) {
    std::vector<std::wstring> documents;
    Subdirectories subdirectories;
    files_.visit(RepCourant, [&](const DirectoryEntry& entry) {
        // Hidden files are left out: beside an open document stands a hidden lock of its kind.
        if (entry.isHidden) return;
        if (entry.isDirectory) {
            subdirectories.push_back({std::wstring(entry.name), entry.isLink});
        } else if (motif_.accepts(entry.name)) {
            documents.emplace_back(entry.name);
        }
    });
    sortByName(documents);
    sortByName(subdirectories);

    found_.beginPass(ajout);
    progress_(static_cast<long>(documents.size()));
    for (const std::wstring& name : documents) found_.store(RepCourant, name);
    return subdirectories;
}

void DocumentSearch::ParcourirSousRep(const std::wstring& directory,
                                      const Subdirectories& subdirectories) {
    open_.enter(directory);
    for (const Subdirectory& subdirectory : subdirectories) {
        const std::wstring path = childPath(directory, subdirectory.name);
        if (subdirectory.isLink && open_.leadsBack(path)) continue;
        ParcourirSousRep(path, CollecterRepertoire(path, true));
    }
    open_.leave();
}
