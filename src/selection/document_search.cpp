#include "selection/document_search.h"

#include <algorithm>
#include <utility>

#include "common/text.h"

namespace {

/// Whether a text is `capitals` in any case, for plain letters only: there are many file names.
bool isInAnyCase(std::wstring_view text, std::wstring_view capitals) {
    return std::ranges::equal(text, capitals, [](wchar_t c, wchar_t capital) {
        return c == capital || c == capital + (L'a' - L'A');
    });
}

}  // namespace

DocumentKinds::DocumentKinds(std::wstring_view typeText) {
    const std::wstring text = upperCase(typeText);
    const auto take = [&](const wchar_t* kind, const wchar_t* pattern) {
        const bool named = text.find(kind) != std::wstring::npos;
        if (named) pattern_ += (pattern_.empty() ? L"" : L";") + std::wstring(pattern);
        return named;
    };
    assemblies_ = take(L"SLDASM", L"*.sldasm");
    parts_ = take(L"SLDPRT", L"*.sldprt");
    drawings_ = take(L"SLDDRW", L"*.slddrw");
}

bool DocumentKinds::accepts(std::wstring_view fileName) const {
    const std::size_t dot = fileName.find_last_of(L'.');
    if (dot == std::wstring_view::npos) return false;
    const std::wstring_view extension = fileName.substr(dot + 1);
    return (assemblies_ && isInAnyCase(extension, L"SLDASM")) ||
           (parts_ && isInAnyCase(extension, L"SLDPRT")) ||
           (drawings_ && isInAnyCase(extension, L"SLDDRW"));
}

int kindRank(std::wstring_view document) {
    static const DocumentKinds kinds[] = {DocumentKinds(L"SLDPRT"), DocumentKinds(L"SLDASM"),
                                          DocumentKinds(L"SLDDRW")};
    const auto accepts = [&](const DocumentKinds& kind) { return kind.accepts(document); };
    return static_cast<int>(std::ranges::find_if(kinds, accepts) - kinds);
}

void FoundDocuments::restart(bool fullPaths) {
    entries_.clear();
    count_ = 0;
    fullPaths_ = fullPaths;
}

void FoundDocuments::take(std::vector<std::wstring> paths) {
    restart(true);
    for (std::wstring& path : paths) entries_[count_++] = std::move(path);
}

void FoundDocuments::beginPass(bool append) {
    pass_.clear();
    if (append) return;
    entries_.clear(0, kCapacity - 1);
    count_ = 0;
}

bool FoundDocuments::presentInPass(const std::wstring& entry) const {
    // The entry just past the last one is compared, too: it may be left over from an earlier
    // search.
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

DocumentSearch::DocumentSearch(const SearchServices& services, FoundDocuments& found,
                               DocumentKinds kinds, Progress progress)
    : services_(services),
      found_(found),
      kinds_(std::move(kinds)),
      progress_(std::move(progress)) {}

WalkEnd DocumentSearch::run(const std::wstring& directory, bool withSubdirectories) {
    // Without a kind to look for there is nothing to find further down.
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
