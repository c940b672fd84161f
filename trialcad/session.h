#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>
#include <wrl/client.h>

#include "document_object.h"

using DocumentPointer = Microsoft::WRL::ComPtr<DocumentObject>;

/// What a caller asks OpenDoc6 for.
struct OpenRequest {
    std::wstring path;
    long type;
    bool silent;
    std::wstring configuration;
};

/// The session's state: its open documents, its search folders, whether it is to be seen.
class Session {
 public:
    /// Search folders for referenced documents, the type that the window shows.
    static constexpr long kReferencedDocuments = 0;

    Session(std::wstring workingDirectory, CallDesk& desk);

    /// Has every change of the state told to the given watcher.
    void watch(std::function<void()> watcher) { watcher_ = std::move(watcher); }

    /// Opens and activates a document, or the one already open under that path.
    /// Null, with a non-zero error code, when the file is missing or its ending is another type's.
    DocumentObject* open(const OpenRequest& request, long& error);

    /// Makes an open document the active one; the name is its path or title. Null when none is.
    DocumentObject* activate(const std::wstring& name);

    /// Closes the document of that path or title; no such document is no error.
    void close(const std::wstring& name);

    const std::vector<DocumentPointer>& documents() const { return documents_; }
    DocumentObject* active() const { return active_.Get(); }
    const std::wstring& workingDirectory() const { return workingDirectory_; }

    /// Folders joined by ";".
    std::wstring searchFolders(long type) const;
    void setSearchFolders(long type, const std::wstring& folders);

    bool visible() const { return visible_; }
    void setVisible(bool visible);

 private:
    DocumentPointer find(const std::wstring& name) const;
    MemberNames& namesOf(DocumentKind kind);
    void setActive(DocumentPointer document);
    void changed() const;

    std::wstring workingDirectory_;
    CallDesk& desk_;
    std::array<MemberNames, 3> names_;
    std::vector<DocumentPointer> documents_;
    DocumentPointer active_;
    std::map<long, std::wstring> searchFolders_;
    bool visible_ = false;
    std::function<void()> watcher_;
};
