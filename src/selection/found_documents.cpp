#include "selection/found_documents.h"

void FoundDocuments::restart(bool fullPaths) {
    entries_.clear();
    count_ = 0;
    fullPaths_ = fullPaths;
}

void FoundDocuments::beginPass(bool append) {
    pass_.clear();
    if (append) return;
    entries_.clear(0, kCapacity - 1);
    count_ = 0;
}

bool FoundDocuments::presentInPass(const std::wstring& entry) const {
    // The entry just past the last one is compared too: it may be left from an earlier search.
    return pass_.contains(entry) || entries_[count_] == entry;
}

void FoundDocuments::store(const std::wstring& directory, std::wstring_view name) {
    if (fullPaths_) {
        std::wstring& entry = entries_[count_];
        entry.reserve(directory.size() + 1 + name.size());
        entry = directory;
        entry += L'\\';
        entry += name;
    } else {
        std::wstring entry(name);
        if (presentInPass(entry)) return;
        entries_[count_] = entry;
        pass_.insert(std::move(entry));
    }
    ++count_;
}
