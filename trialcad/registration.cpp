#include "registration.h"

#include <oleauto.h>
#include <utility>

#include "class_keys.h"
#include "win32/com/com_ptr.h"

namespace {

/// Whether an object is registered under this class, and its process is alive.
bool isRunning(REFCLSID classId) {
    ComPtr<IUnknown> other;
    ComPtr<IDispatch> dispatch;
    return SUCCEEDED(GetActiveObject(classId, nullptr, other.put())) &&
           SUCCEEDED(other->QueryInterface(IID_IDispatch, dispatch.putVoid()));
}

ComPtr<IRunningObjectTable> runningObjects() {
    ComPtr<IRunningObjectTable> table;
    GetRunningObjectTable(0, table.put());
    return table;
}

/// The name of this process's session, without a delimiter.
ComPtr<IMoniker> processName() {
    const std::wstring name = L"SolidWorks_PID_" + std::to_wstring(GetCurrentProcessId());
    ComPtr<IMoniker> moniker;
    CreateItemMoniker(L"", name.c_str(), moniker.put());
    return moniker;
}

void require(HRESULT registered) {
    if (FAILED(registered)) {
        throw RegistrationError{
            L"Windows refuse d'inscrire la session d'essai parmi les objets actifs."};
    }
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
    if (!provideClassId(classId)) {
        throw RegistrationError{
            L"La classe « SldWorks.Application » ne peut pas être inscrite dans le registre."};
    }
    if (isRunning(classId)) {
        throw RegistrationError{
            L"Une session SolidWorks est déjà ouverte.\n\n"
            L"Fermez-la avant d'ouvrir la session d'essai."};
    }
    const HRESULT registered =
        RegisterActiveObject(&application_, classId, ACTIVEOBJECT_STRONG, &classCookie_);
    if (FAILED(registered)) removeOwnClassId();
    require(registered);
}

void Registration::registerProcess() {
    require(runningObjects()->Register(ROTFLAGS_REGISTRATIONKEEPSALIVE, &application_,
                                       processName().get(), &processCookie_));
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
