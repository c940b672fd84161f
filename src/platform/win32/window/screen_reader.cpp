#include "platform/win32/window/accessible_names.h"

#include <oleacc.h>

#include "platform/win32/com/com_ptr.h"

void nameControls(HWND window, std::span<const AccessibleName> names) {
    ComPtr<IAccPropServices> services;
    if (names.empty()) return;
    CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                     services.putVoid());
    if (!services) return;
    for (const AccessibleName& name : names) {
        services->SetHwndPropStr(GetDlgItem(window, name.controlId),
                                 static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                                 name.text);
    }
}
