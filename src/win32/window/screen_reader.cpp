#include "win32/window/screen_reader.h"

#include <oleacc.h>

#include "win32/com/com_ptr.h"

namespace {

// UIAutomationCoreApi.h has it for those who link with that library.
constexpr GUID kLiveSetting = {
    0xc12bcd8e, 0x2a8e, 0x4950, {0x8a, 0xe7, 0x36, 0x25, 0x11, 0x1d, 0x58, 0xeb}};

/// What a window tells of itself by way of Active Accessibility, made up for.
class Annotations {
 public:
    Annotations() {
        CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                         services_.putVoid());
    }

    void set(HWND window, const MSAAPROPID& property, LONG value) {
        VARIANT variant{};
        variant.vt = VT_I4;
        variant.lVal = value;
        if (services_) services_->SetHwndProp(window, kClient, CHILDID_SELF, property, variant);
    }
    void set(HWND window, const MSAAPROPID& property, const wchar_t* text) {
        if (services_) services_->SetHwndPropStr(window, kClient, CHILDID_SELF, property, text);
    }

 private:
    static constexpr auto kClient = static_cast<DWORD>(OBJID_CLIENT);

    ComPtr<IAccPropServices> services_;
};

}  // namespace

void tellScreenReaders(HWND window, std::span<const AccessibleName> names, int liveId) {
    Annotations annotations;
    // Windows takes the role from the class, and ours is none of its own.
    annotations.set(window, PROPID_ACC_ROLE, ROLE_SYSTEM_DIALOG);
    for (const AccessibleName& name : names) {
        annotations.set(GetDlgItem(window, name.controlId), PROPID_ACC_NAME, name.text);
    }
    // Read out when the reader is done with what it says: LiveSetting's "polite".
    constexpr LONG kPolite = 1;
    if (liveId != 0) annotations.set(GetDlgItem(window, liveId), kLiveSetting, kPolite);
}

void announceChange(HWND label) {
    NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, label, OBJID_CLIENT, CHILDID_SELF);
}
