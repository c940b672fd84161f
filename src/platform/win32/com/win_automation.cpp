#include "platform/win32/com/win_automation.h"

#include <objbase.h>
#include <oleauto.h>

#include "common/runtime_error.h"

ObjectPtr WinAutomation::attach(const std::wstring& progId) {
    CLSID classId;
    ComPtr<IUnknown> object;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId)) ||
        FAILED(GetActiveObject(classId, nullptr, object.put())) || !object) {
        return nullptr;
    }
    ComPtr<IDispatch> dispatch;
    binding_.patience.call(
        [&] { return object->QueryInterface(IID_IDispatch, dispatch.putVoid()); });
    return dispatch ? std::make_shared<LateBoundObject>(dispatch, binding_, progId) : nullptr;
}

ObjectPtr WinAutomation::create(const std::wstring& progId) {
    CLSID classId;
    ComPtr<IDispatch> dispatch;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId)) ||
        FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                dispatch.putVoid()))) {
        throw errors::automation(L"L'objet " + progId + L" ne peut pas être créé.");
    }
    return std::make_shared<LateBoundObject>(dispatch, binding_, progId);
}
