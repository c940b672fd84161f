#include "registration.h"

#include <oleauto.h>
#include <utility>
#include <wrl/client.h>

#include "class_keys.h"

namespace {

/// Whether the object registered under that class, if any, still lives in its process.
bool isRunning(REFCLSID classId) {
    Microsoft::WRL::ComPtr<IUnknown> other;
    Microsoft::WRL::ComPtr<IDispatch> dispatch;
    return SUCCEEDED(GetActiveObject(classId, nullptr, &other)) && SUCCEEDED(other.As(&dispatch));
}

Microsoft::WRL::ComPtr<IRunningObjectTable> runningObjects() {
    Microsoft::WRL::ComPtr<IRunningObjectTable> table;
    GetRunningObjectTable(0, &table);
    return table;
}

/// The name of this process's session, which is displayed without any delimiter.
Microsoft::WRL::ComPtr<IMoniker> processName() {
    const std::wstring name = L"SolidWorks_PID_" + std::to_wstring(GetCurrentProcessId());
    Microsoft::WRL::ComPtr<IMoniker> moniker;
    CreateItemMoniker(L"", name.c_str(), &moniker);
    return moniker;
}

void require(HRESULT registered) {
    if (FAILED(registered))
        throw RegistrationError{
            L"Windows refuse d'inscrire la session d'essai parmi les objets actifs."};
}

}  // namespace

Registration::Registration(IUnknown& application, Names names) : application_(application) {
    try {
        if (names == Names::Both) registerClass();
        registerProcess();
    } catch (const RegistrationError&) {
        withdraw();
        throw;
    }
}

void Registration::registerClass() {
    CLSID classId;
    if (!provideClassId(classId))
        throw RegistrationError{
            L"La classe « SldWorks.Application » ne peut pas être inscrite dans le registre."};
    if (isRunning(classId))
        throw RegistrationError{
            L"Une session SolidWorks est déjà ouverte.\n\n"
            L"Fermez-la avant d'ouvrir la session d'essai."};
    const HRESULT registered =
        RegisterActiveObject(&application_, classId, ACTIVEOBJECT_STRONG, &classCookie_);
    if (FAILED(registered)) removeOwnClassId();
    require(registered);
}

void Registration::registerProcess() {
    require(runningObjects()->Register(ROTFLAGS_REGISTRATIONKEEPSALIVE, &application_,
                                       processName().Get(), &processCookie_));
}

Registration::~Registration() { withdraw(); }

void Registration::withdraw() {
    if (std::exchange(withdrawn_, true)) return;
    if (processCookie_ != 0) runningObjects()->Revoke(processCookie_);
    if (classCookie_ != 0) {
        RevokeActiveObject(classCookie_, nullptr);
        removeOwnClassId();
    }
    // Clients get an error at their next call instead of waiting for a process that is leaving.
    CoDisconnectObject(&application_, 0);
}
