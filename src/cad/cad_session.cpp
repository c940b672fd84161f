#include "cad/cad_session.h"

#include "cad/cad_names.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"

namespace {

constexpr std::int32_t kOpenSilently = 1;
constexpr std::int32_t kReferencedDocuments = 0;  // what the search folders are for

/// Documents of one type have the same numbers for their members. A document whose path shows
/// no type shares them with no other.
std::wstring documentClass(const std::wstring& path) {
    const auto type = documentType(path);
    return type ? L"document " + decimal(*type) : std::wstring();
}

/// What an answer says that is a number or a boolean.
SaveAnswer saveAnswer(const Value& answer) {
    constexpr std::int32_t kAnyError = 1;
    const auto coded = [](std::int32_t code) {
        return SaveAnswer{code == 0 ? Saved::Yes : Saved::No, code};
    };
    if (const auto* number = std::get_if<std::int32_t>(&answer)) return coded(*number);
    if (const auto* number = std::get_if<std::int16_t>(&answer)) return coded(*number);
    if (const auto* truth = std::get_if<bool>(&answer)) return coded(*truth ? 0 : kAnyError);
    return {};
}

/// Notes what the error code says about a document that was returned, or was not.
void noteOpening(Remark& remark, bool given, std::int32_t errorCode) {
    using Opening = Remark::Opening;
    if (given) {
        remark.opening = errorCode == 0 ? Opening::Silent : Opening::WithErrors;
    } else {
        remark.opening = errorCode == 0 ? Opening::Failed : Opening::Refused;
    }
    remark.openingNumber = given || errorCode != 0 ? errorCode : errors::emptyObject().number;
}

/// Does a step of an opening. Returns false when it failed because of the document and that is
/// allowed.
template <class Action>
bool attempt(bool mayFail, Remark& remark, const Action& action) {
    try {
        action();
        return true;
    } catch (const RuntimeError& error) {
        // The session has already said why it did not return the document.
        if (remark.opening != Remark::Opening::Refused) {
            remark.opening = Remark::Opening::Failed;
            remark.openingNumber = error.number;
        }
        if (!mayFail || error.sessionLost) throw;
        return false;
    }
}

/// The directory of a path, without a trailing backslash unless it is a drive's root.
std::wstring directoryOf(const std::wstring& path) {
    const std::size_t end = path.rfind(L'\\');
    if (end == std::wstring::npos) return {};
    return path.substr(0, end == 2 ? 3 : end);
}

/// Does something with a document, which the text of a failure names.
template <class Action>
void with(const std::wstring& path, const Action& action) {
    try {
        action();
    } catch (RuntimeError& error) {
        if (!path.empty()) error.addLine(L"Document : " + path);
        throw;
    }
}

}  // namespace

bool CadSession::attach(Automation& automation) {
    constexpr wchar_t kProgId[] = L"SldWorks.Application";
    application_ = automation.attach(kProgId);
    // The class may belong to another release than the running one.
    if (!application_) application_ = automation.attachNamed(L"SolidWorks_PID_", kProgId);
    return application_ != nullptr;
}

void CadSession::identify() {
    releaseName_ = releaseName(textOf(callMethod(application_, L"RevisionNumber")));
    workingDirectory_ = textOf(callMethod(application_, L"GetCurrentWorkingDirectory"));
}

bool CadSession::hasOpen(const std::wstring& path) const {
    return equalIgnoringCase(path, openPath_);
}

bool CadSession::open(const std::wstring& path, const LoadingOptions& options, Remark& remark) {
    openPath_ = path;
    closed_ = isUsers_ = false;
    typeCode_ = documentType(path).value_or(typeCode_);
    bool opened = false;
    with(path, [&] { opened = load(path, options, remark); });
    if (!opened) forgetDocument();
    return opened;
}

bool CadSession::load(const std::wstring& path, const LoadingOptions& options, Remark& remark) {
    if (options.worksThere) {
        movedAway_ = true;
        changeDirectory(directoryOf(path));
    }
    document_ = nullptr;
    std::int32_t errorCode = 0;
    const auto opening = [&] { errorCode = openDocument(path, options.silent, remark); };
    if (!attempt(options.mayRefuse, remark, opening)) return false;
    const bool given = document_ != nullptr;
    noteOpening(remark, given, errorCode);
    if (!given && options.mayRefuse) return false;
    const auto activation = [&] {
        activate(path);
        if (document_) noteOpening(remark, true, errorCode);
        if (!document_ && given) noteOpening(remark, false, 0);
    };
    if (attempt(options.mayRefuse, remark, activation) && (document_ || !options.mayRefuse)) {
        putProperty(application_, L"Visible", true);
        if (attempt(options.mayRefuse, remark, [&] { rebuild(options.rebuild); })) return true;
    }
    closeDocument();
    return false;
}

std::int32_t CadSession::openDocument(const std::wstring& path, bool silent, Remark& remark) {
    constexpr std::int32_t kAlreadyOpen = 128;  // swFileLoadWarning_e
    std::wstring name = path;
    std::int16_t type = typeCode_;
    std::int32_t errorCode = 0;
    const std::int32_t mode = silent ? kOpenSilently : 0;
    document_ = objectOf(callMethod(
        application_, L"OpenDoc6",
        {&name, &type, mode, std::wstring(), &errorCode, &remark.warnings}, documentClass(path)));
    isUsers_ = (remark.warnings & kAlreadyOpen) != 0;
    return errorCode;
}

void CadSession::activate(const std::wstring& path) {
    std::wstring name = path;
    std::int32_t code = 0;
    document_ = objectOf(
        callMethod(application_, L"ActivateDoc2", {&name, true, &code}, documentClass(path)));
}

void CadSession::changeDirectory(const std::wstring& directory) {
    try {
        callMethod(application_, L"SetCurrentWorkingDirectory", {directory});
    } catch (const RuntimeError& error) {
        // The document can be opened all the same.
        if (error.sessionLost) throw;
    }
}

void CadSession::restoreWorkingDirectory() {
    if (!movedAway_) return;
    try {
        changeDirectory(workingDirectory_);
    } catch (const RuntimeError&) {
        // The program ends: nobody needs to know.
    }
}

void CadSession::rebuild(LoadingOptions::Rebuild wanted) {
    using Rebuild = LoadingOptions::Rebuild;
    if (wanted == Rebuild::None) return;
    callMethod(document_, L"ForceRebuild3", {wanted == Rebuild::TopLevel});
}

SaveAnswer CadSession::save() {
    Value answer;
    with(openPath_, [&] { answer = callMethod(document_, L"save2", {true}); });
    return saveAnswer(answer);
}

void CadSession::closeDocument() {
    if (leavesUsers_ && (isUsers_ || openPath_.empty())) return;
    with(openPath_, [&] { callMethod(application_, L"closedoc", {openPath_}); });
    closed_ = true;
}

void CadSession::forgetDocument() {
    openPath_.clear();
    isUsers_ = false;
}

std::wstring CadSession::title() { return textOf(callMethod(document_, L"GetTitle")); }

Desktop::WindowHandle CadSession::findWindow() {
    title_ = title();
    if (const auto window = desktop_.findWindow(releaseName_ + L" - " + title_)) return window;
    title_ = title();
    const auto window = desktop_.findWindow(releaseName_ + L" - [" + title_ + L"]");
    return window != 0 || !anyRelease_ ? window : findWindowOfAnyRelease();
}

Desktop::WindowHandle CadSession::findWindowOfAnyRelease() {
    return desktop_.findWindow(
        [&](const std::wstring& title) { return isTitleOfAnyRelease(title, title_); });
}

std::optional<int> CadSession::gdiObjects() {
    return desktop_.gdiObjects(window_ != 0 ? window_ : findWindowOfAnyRelease());
}

void CadSession::bringForward() {
    with(openPath_, [&] {
        window_ = findWindow();
        if (anyRelease_) desktop_.restore(window_);
        desktop_.bringToFront(window_);
        callMethod(document_, L"ViewZoomtofit2");
    });
}

std::wstring CadSession::searchFolders() {
    return textOf(callMethod(application_, L"GetSearchFolders", {kReferencedDocuments}));
}

bool CadSession::setSearchFolders(std::wstring folders) {
    return isTrue(callMethod(application_, L"setsearchfolders", {kReferencedDocuments, &folders}));
}
