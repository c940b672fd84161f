#include "session.h"

#include <algorithm>
#include <utility>

#include "document_file.h"
#include "text.h"

namespace {

constexpr long kNoError = 0;
constexpr long kFileNotFound = 2;
constexpr long kInvalidFileType = 1024;

// Each kind has DISPIDs of its own, so that a client that mixes them up is found out here.
constexpr DISPID kFirstOfParts = 0x10001;
constexpr DISPID kFirstOfAssemblies = 0x20001;
constexpr DISPID kFirstOfDrawings = 0x30001;

long openingError(const std::wstring& path, long type) {
    if (!fileExists(path)) return kFileNotFound;
    const auto kind = kindOfFile(path);
    return kind && static_cast<long>(*kind) == type ? kNoError : kInvalidFileType;
}

}  // namespace

Session::Session(std::wstring workingDirectory, CallDesk& desk)
    : workingDirectory_(std::move(workingDirectory)),
      desk_(desk),
      names_{MemberNames(DocumentObject::members(), kFirstOfParts),
             MemberNames(DocumentObject::members(), kFirstOfAssemblies),
             MemberNames(DocumentObject::members(), kFirstOfDrawings)} {}

DocumentObject* Session::open(const OpenRequest& request, long& error) {
    const std::wstring path = absolutePath(request.path, workingDirectory_);
    error = openingError(path, request.type);
    if (error != kNoError) return nullptr;
    DocumentPointer document = find(path);
    if (!document) {
        const auto kind = static_cast<DocumentKind>(request.type);
        document.Attach(new DocumentObject({path, kind, request.silent, request.configuration},
                                           namesOf(kind), desk_));
        documents_.push_back(document);
    }
    setActive(document);
    return document.Get();
}

DocumentObject* Session::activate(const std::wstring& name) {
    const DocumentPointer document = find(name);
    if (document) setActive(document);
    return document.Get();
}

void Session::close(const std::wstring& name) {
    const DocumentPointer document = find(name);
    if (!document) return;
    document->close();
    documents_.erase(std::find(documents_.begin(), documents_.end(), document));
    const bool wasActive = document == active_;
    setActive(!wasActive ? active_ : documents_.empty() ? nullptr : documents_.back());
}

DocumentPointer Session::find(const std::wstring& name) const {
    if (name.empty()) return nullptr;
    const std::wstring path = absolutePath(name, workingDirectory_);
    for (const DocumentPointer& document : documents_)
        if (sameText(document->document().path, path)) return document;
    for (const DocumentPointer& document : documents_)
        if (sameText(document->title(), name)) return document;
    return nullptr;
}

MemberNames& Session::namesOf(DocumentKind kind) {
    return names_[static_cast<size_t>(kind) - static_cast<size_t>(DocumentKind::Part)];
}

std::wstring Session::searchFolders(long type) const {
    const auto found = searchFolders_.find(type);
    return found == searchFolders_.end() ? L"" : found->second;
}

void Session::setSearchFolders(long type, const std::wstring& folders) {
    searchFolders_[type] = folders;
    changed();
}

void Session::setVisible(bool visible) {
    visible_ = visible;
    changed();
}

void Session::setActive(DocumentPointer document) {
    active_ = std::move(document);
    changed();
}

void Session::changed() const {
    if (watcher_) watcher_();
}
