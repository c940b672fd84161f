#include "session.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "common/text.h"
#include "document_file.h"

namespace {

// Of swFileLoadError_e and swFileLoadWarning_e.
constexpr std::int32_t kFileNotFound = 2;
constexpr std::int32_t kInvalidFileType = 1024;
constexpr std::int32_t kSameTitleIsOpen = 65536;
constexpr std::int32_t kReadOnlyDocument = 2;
constexpr std::int32_t kAlreadyOpen = 128;

// Each kind has DISPIDs of its own, so that a client that mixes them up fails here.
constexpr DISPID kFirstOfParts = 0x10001;
constexpr DISPID kFirstOfAssemblies = 0x20001;
constexpr DISPID kFirstOfDrawings = 0x30001;

bool isOfType(const std::wstring& path, std::int32_t type) {
    const auto kind = kindOfFile(path);
    return kind && static_cast<std::int32_t>(*kind) == type;
}

std::wstring titleOf(const std::wstring& path, bool endingHidden) {
    const std::wstring name = fileNameOf(path);
    return endingHidden ? name.substr(0, name.rfind(L'.')) : name;
}

}  // namespace

Session::Session(const SessionStart& start, CallDesk& desk)
    : workingDirectory_(start.workingDirectory),
      script_(start.script),
      endingsHidden_(start.endingsHidden),
      desk_(desk),
      names_{MemberNames(DocumentObject::members(), kFirstOfParts),
             MemberNames(DocumentObject::members(), kFirstOfAssemblies),
             MemberNames(DocumentObject::members(), kFirstOfDrawings)} {
    for (ScriptedDocument& document : script_) openUsersOwn(document, document.path);
}

void Session::openUsersOwn(ScriptedDocument& script, const std::wstring& path) {
    const auto kind = kindOfFile(path);
    if (!script.usersOwn || !kind || !fileExists(path) || namesake(path)) return;
    script.usersOwn = false;  // once closed it stays closed
    active_ = add({.path = path, .kind = *kind}, &script);
    active_->modify();
}

DocumentObject* Session::open(OpenRequest request, OpenCodes& codes) {
    const std::wstring& path = request.path = absolutePath(request.path, workingDirectory_);
    ScriptedDocument* script = scriptedDocument(script_, path);
    // Only now is it known which document a line with a mere file name means.
    if (script) openUsersOwn(*script, path);
    if (const auto refusal = refusalOf(request, script)) {
        codes = {.error = *refusal};
        return nullptr;
    }
    if (script) codes = {script->error.next().value_or(0), script->warning.next().value_or(0)};
    if (isReadOnly(path)) codes.warning |= kReadOnlyDocument;
    DocumentPointer document = namesake(path);
    if (document) codes.warning |= kAlreadyOpen;
    if (!document) {
        document = add({.path = path,
                        .kind = static_cast<DocumentKind>(request.type),
                        .silent = request.silent,
                        .configuration = request.configuration},
                       script);
    }
    setActive(document);
    return document.get();
}

std::optional<std::int32_t> Session::refusalOf(const OpenRequest& request,
                                               ScriptedDocument* script) const {
    if (script) {
        if (const auto refusal = script->refuse.next()) return refusal;
    }
    const DocumentPointer other = namesake(request.path);
    const bool isOpen = other && equalIgnoringCase(other->document().path, request.path);
    if (!isOpen && !fileExists(request.path)) return kFileNotFound;
    if (!isOfType(request.path, request.type)) return kInvalidFileType;
    if (other && !isOpen) return kSameTitleIsOpen;
    return std::nullopt;
}

DocumentPointer Session::add(Document document, ScriptedDocument* script) {
    document.title = titleOf(document.path, endingsHidden_);
    if (script) document.save = &script->save;
    MemberNames& names = namesOf(document.kind);
    documents_.emplace_back(new DocumentObject(std::move(document), names, desk_));
    return documents_.back();
}

DocumentObject* Session::activate(const std::wstring& name) {
    const DocumentPointer document = find(name);
    if (document) setActive(document);
    return document.get();
}

Closing Session::close(const std::wstring& name) {
    const DocumentPointer document = name.empty() ? active_ : find(name);
    if (!document) return Closing::NotOpen;
    document->close();
    std::erase_if(documents_, [&](const DocumentPointer& open) { return !open->isConnected(); });
    if (!active_ || !active_->isConnected()) {
        active_ = documents_.empty() ? DocumentPointer() : documents_.back();
    }
    changed();
    return document->isModified() ? Closing::ChangesLost : Closing::Closed;
}

bool Session::setWorkingDirectory(const std::wstring& directory) {
    if (!directoryExists(directory)) return false;
    workingDirectory_ = directory;
    changed();
    return true;
}

DocumentPointer Session::namesake(const std::wstring& path) const {
    const auto found = std::ranges::find_if(documents_, [&](const DocumentPointer& document) {
        return equalIgnoringCase(fileNameOf(document->document().path), fileNameOf(path));
    });
    return found == documents_.end() ? DocumentPointer() : *found;
}

DocumentPointer Session::find(const std::wstring& name) const {
    const std::wstring path = absolutePath(name, workingDirectory_);
    const auto found = std::ranges::find_if(documents_, [&](const DocumentPointer& document) {
        const std::wstring& own = document->document().path;
        return equalIgnoringCase(own, path) || equalIgnoringCase(fileNameOf(own), name) ||
               equalIgnoringCase(document->title(), name);
    });
    return found == documents_.end() ? DocumentPointer() : *found;
}

MemberNames& Session::namesOf(DocumentKind kind) {
    return names_[static_cast<size_t>(kind) - static_cast<size_t>(DocumentKind::Part)];
}

std::wstring Session::searchFolders(std::int32_t type) const {
    const auto found = searchFolders_.find(type);
    return found == searchFolders_.end() ? L"" : found->second;
}

void Session::setSearchFolders(std::int32_t type, const std::wstring& folders) {
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
