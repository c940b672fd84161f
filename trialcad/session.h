#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "document_object.h"
#include "win32/com/com_ptr.h"

using DocumentPointer = ComPtr<DocumentObject>;

/// What a caller asks OpenDoc6 for.
struct OpenRequest {
    std::wstring path;
    std::int32_t type;
    bool silent;
    std::wstring configuration;
};

/// What OpenDoc6 says about an opening: bits of swFileLoadError_e and of swFileLoadWarning_e.
struct OpenCodes {
    std::int32_t error = 0;
    std::int32_t warning = 0;
};

/// The outcome of closing a document.
enum class Closing { NotOpen, Closed, ChangesLost };

/// How a session begins.
struct SessionStart {
    std::wstring workingDirectory;
    DocumentScript script;
    bool endingsHidden = false;  ///< the Explorer's setting, which the titles follow
};

/// The session's state: its open documents, its search folders, whether it is visible.
class Session {
 public:
    /// The type of the search folders for referenced documents, which the window shows.
    static constexpr std::int32_t kReferencedDocuments = 0;

    Session(const SessionStart& start, CallDesk& desk);

    /// Calls the watcher at every change of the state.
    void watch(std::function<void()> watcher) { watcher_ = std::move(watcher); }

    /// Opens and activates a document, or the one already open with that path. Null when the script
    /// says so, the file is missing, its extension is another type's, or a document of the same
    /// name is open.
    DocumentObject* open(OpenRequest request, OpenCodes& codes);

    /// Activates an open document by its path or title. Null when there is none.
    DocumentObject* activate(const std::wstring& name);

    /// Closes the document with this path or title, for an empty name the active one, without
    /// saving.
    Closing close(const std::wstring& name);

    const std::vector<DocumentPointer>& documents() const { return documents_; }
    DocumentObject* active() const { return active_.get(); }
    const std::wstring& workingDirectory() const { return workingDirectory_; }
    /// False when there is no such directory.
    bool setWorkingDirectory(const std::wstring& directory);
    size_t scriptedDocuments() const { return script_.size(); }

    /// The folders, joined by ";".
    std::wstring searchFolders(std::int32_t type) const;
    void setSearchFolders(std::int32_t type, const std::wstring& folders);

    bool visible() const { return visible_; }
    void setVisible(bool visible);

 private:
    std::optional<std::int32_t> refusalOf(const OpenRequest& request,
                                          ScriptedDocument* script) const;
    void openUsersOwn(ScriptedDocument& script, const std::wstring& path);
    DocumentPointer add(Document document, ScriptedDocument* script);
    /// The open document with that file name; there is never more than one.
    DocumentPointer namesake(const std::wstring& path) const;
    DocumentPointer find(const std::wstring& name) const;
    MemberNames& namesOf(DocumentKind kind);
    void setActive(DocumentPointer document);
    void changed() const;

    std::wstring workingDirectory_;
    DocumentScript script_;
    const bool endingsHidden_;
    CallDesk& desk_;
    std::array<MemberNames, 3> names_;
    std::vector<DocumentPointer> documents_;
    DocumentPointer active_;
    std::map<std::int32_t, std::wstring> searchFolders_;
    bool visible_ = false;
    std::function<void()> watcher_;
};
