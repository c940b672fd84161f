#include "platform/win32/window/accessible_names.h"

#include <oleacc.h>

void nameControls(HWND window, std::span<const AccessibleName> names) {
    IAccPropServices* services = nullptr;
    if (names.empty()) return;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IAccPropServices, reinterpret_cast<void**>(&services)))) {
        return;
    }
    for (const AccessibleName& name : names) {
        services->SetHwndPropStr(GetDlgItem(window, name.controlId),
                                 static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                                 name.text);
    }
    services->Release();
}
