#include "cad/cad_session.h"

#include "cad/document_type.h"
#include "cad/release_name.h"
#include "cad/window_title.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"

namespace {

constexpr std::int32_t kOpenSilently = 1;
constexpr std::int32_t kReferencedDocuments = 0;  // the search folders for those

/// Documents of one type answer a name alike; parts, assemblies and drawings each in their way.
/// Of a document whose ending tells no type nothing is known.
std::wstring documentClass(const std::wstring& path) {
    const auto type = documentType(path);
    return type ? L"document " + decimal(*type) : std::wstring();
}

/// An error number, 0 when there was none, or a truth.
std::optional<bool> isSaved(const Value& answer) {
    if (const auto* number = std::get_if<std::int32_t>(&answer)) return *number == 0;
    if (const auto* number = std::get_if<std::int16_t>(&answer)) return *number == 0;
    if (const auto* truth = std::get_if<bool>(&answer)) return *truth;
    return std::nullopt;
}

/// Does something with a document. A failure names it.
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
    application_ = automation.attach(L"SldWorks.Application");
    return application_ != nullptr;
}

void CadSession::identify() {
    releaseName_ = releaseName(textOf(callMethod(application_, L"RevisionNumber")));
    workingDirectory_ = textOf(callMethod(application_, L"GetCurrentWorkingDirectory"));
}

bool CadSession::hasOpen(const std::wstring& path) const {
    return equalIgnoringCase(path, openPath_);
}

void CadSession::open(const std::wstring& path, const LoadingOptions& options) {
    openPath_ = path;
    typeCode_ = documentType(path).value_or(typeCode_);
    with(path, [&] { load(path, options); });
}

void CadSession::load(const std::wstring& path, const LoadingOptions& options) {
    const std::wstring objectClass = documentClass(path);
    std::wstring name = path;
    std::int16_t type = typeCode_;
    std::int32_t errorCode = 0;
    std::int32_t warningCode = 0;
    const std::int32_t mode = options.silent ? kOpenSilently : 0;
    document_ = objectOf(callMethod(application_, L"OpenDoc6",
                                    {&name, &type, mode, std::wstring(), &errorCode, &warningCode},
                                    objectClass));
    name = path;
    errorCode = 0;
    document_ =
        objectOf(callMethod(application_, L"ActivateDoc2", {&name, true, &errorCode}, objectClass));
    putProperty(application_, L"Visible", true);
    rebuild(options.rebuild);
}

void CadSession::rebuild(LoadingOptions::Rebuild wanted) {
    using Rebuild = LoadingOptions::Rebuild;
    if (wanted == Rebuild::None) return;
    callMethod(document_, L"ForceRebuild3", {wanted == Rebuild::TopLevel});
}

std::optional<bool> CadSession::save() {
    Value answer;
    with(openPath_, [&] { answer = callMethod(document_, L"save2", {true}); });
    return isSaved(answer);
}

void CadSession::closeDocument() {
    with(openPath_, [&] { callMethod(application_, L"closedoc", {openPath_}); });
}

std::wstring CadSession::title() { return textOf(callMethod(document_, L"GetTitle")); }

Desktop::WindowHandle CadSession::findWindow() {
    if (const auto window = desktop_.findWindow(releaseName_ + L" - " + title())) return window;
    const std::wstring document = title();
    const auto window = desktop_.findWindow(releaseName_ + L" - [" + document + L"]");
    if (window != 0 || !anyRelease_) return window;
    return desktop_.findWindow(
        [&](const std::wstring& title) { return isTitleOfAnyRelease(title, document); });
}

void CadSession::bringForward() {
    with(openPath_, [&] {
        const Desktop::WindowHandle window = findWindow();
        if (anyRelease_) desktop_.restore(window);
        desktop_.bringToFront(window);
        callMethod(document_, L"ViewZoomtofit2");
    });
}

std::wstring CadSession::searchFolders() {
    return textOf(callMethod(application_, L"GetSearchFolders", {kReferencedDocuments}));
}

bool CadSession::setSearchFolders(std::wstring folders) {
    return isTrue(callMethod(application_, L"setsearchfolders", {kReferencedDocuments, &folders}));
}
