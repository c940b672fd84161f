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

}  // namespace

Registration::Registration(IUnknown& application) : application_(application) {
    CLSID classId;
    if (!provideClassId(classId))
        throw RegistrationError{
            L"La classe « SldWorks.Application » ne peut pas être inscrite dans le registre."};
    if (isRunning(classId))
        throw RegistrationError{
            L"Une session SolidWorks est déjà ouverte.\n\n"
            L"Fermez-la avant d'ouvrir la session d'essai."};
    const HRESULT registered =
        RegisterActiveObject(&application, classId, ACTIVEOBJECT_STRONG, &cookie_);
    if (SUCCEEDED(registered)) return;
    removeOwnClassId();
    throw RegistrationError{
        L"Windows refuse d'inscrire la session d'essai parmi les objets actifs."};
}

Registration::~Registration() { withdraw(); }

void Registration::withdraw() {
    if (std::exchange(withdrawn_, true)) return;
    RevokeActiveObject(cookie_, nullptr);
    // Clients get an error at their next call instead of waiting for a process that is leaving.
    CoDisconnectObject(&application_, 0);
    removeOwnClassId();
}
