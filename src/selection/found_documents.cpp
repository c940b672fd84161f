#include "selection/found_documents.h"

void FoundDocuments::restart(bool CheminsComplets) {
    for (long i = 0; i < kCapacity; ++i) TabFich_[i].clear();
    count_ = 0;
    CheminsComplets_ = CheminsComplets;
}

void FoundDocuments::beginPass(bool append) {
    pass_.clear();
    if (append) return;
    for (long i = 0; i < kCapacity - 1; ++i) TabFich_[i].clear();
    count_ = 0;
}

bool FoundDocuments::presentInPass(const std::wstring& entry) const {
    // The entry just past the last one is compared too: it may be left from an earlier search.
    return pass_.contains(entry) || TabFich_[count_] == entry;
}

void FoundDocuments::store(const std::wstring& directory, std::wstring_view name) {
    if (CheminsComplets_) {
        std::wstring& entry = TabFich_[count_];
        entry.reserve(directory.size() + 1 + name.size());
        entry = directory;
        entry += L'\\';
        entry += name;
    } else {
        std::wstring entry(name);
        if (presentInPass(entry)) return;
        TabFich_[count_] = entry;
        pass_.insert(std::move(entry));
    }
    ++count_;
}
