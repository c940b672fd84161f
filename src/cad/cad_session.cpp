#include "cad/cad_session.h"

#include "app/module1.h"
#include "cad/release_name.h"
#include "common/numbers.h"
#include "platform/automation.h"
#include "platform/desktop.h"

namespace {

constexpr std::int32_t kOpenSilently = 1;

/// Documents of one type answer a name alike; parts, assemblies and drawings each in their way.
std::wstring documentClass(std::int16_t typeCode) { return L"document " + decimal(typeCode); }

}  // namespace

bool CadSession::attach(Automation& automation) {
    module_.SwApp = automation.attach(L"SldWorks.Application");
    return module_.SwApp != nullptr;
}

void CadSession::readRevision() {
    module_.NomVersionSw = releaseName(textOf(callMethod(module_.SwApp, L"RevisionNumber")));
}

void CadSession::readWorkingDirectory() {
    module_.RepTravailSw = textOf(callMethod(module_.SwApp, L"GetCurrentWorkingDirectory"));
}

void CadSession::open(const std::wstring& path, std::int16_t typeCode, bool silent) {
    std::wstring name = path;
    std::int16_t type = typeCode;
    std::int32_t errorCode = 0;
    std::int32_t warningCode = 0;
    const std::int32_t options = silent ? kOpenSilently : 0;
    module_.SwDoc =
        objectOf(callMethod(module_.SwApp, L"OpenDoc6",
                            {&name, &type, options, std::wstring(), &errorCode, &warningCode},
                            documentClass(typeCode)));
}

void CadSession::activate(const std::wstring& path, std::int16_t typeCode) {
    std::wstring name = path;
    std::int32_t errorCode = 0;
    module_.SwDoc = objectOf(callMethod(module_.SwApp, L"ActivateDoc2", {&name, true, &errorCode},
                                        documentClass(typeCode)));
}

void CadSession::showApplication() { putProperty(module_.SwApp, L"Visible", true); }

void CadSession::rebuild(bool topLevelOnly) {
    callMethod(module_.SwDoc, L"ForceRebuild3", {topLevelOnly});
}

void CadSession::save() { callMethod(module_.SwDoc, L"save2", {true}); }

void CadSession::closeDocument() {
    callMethod(module_.SwApp, L"closedoc", {module_.NomDocCourant});
}

std::wstring CadSession::title() { return textOf(callMethod(module_.SwDoc, L"GetTitle")); }

void CadSession::bringForward() {
    auto window = desktop_.findWindow(module_.NomVersionSw + L" - " + title());
    if (window == 0) window = desktop_.findWindow(module_.NomVersionSw + L" - [" + title() + L"]");
    desktop_.bringToFront(window);
    callMethod(module_.SwDoc, L"ViewZoomtofit2");
}
