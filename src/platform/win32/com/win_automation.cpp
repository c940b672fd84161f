#include "platform/win32/com/win_automation.h"

#include <objbase.h>
#include <oleauto.h>

#include "common/runtime_error.h"
#include "platform/win32/com/call_out.h"

namespace {

IDispatch* dispatchOf(IUnknown* object) {
    IDispatch* dispatch = nullptr;
    callPatiently([&] {
        const CallOut out;
        return object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch));
    });
    object->Release();
    return dispatch;
}

}  // namespace

ObjectPtr WinAutomation::attach(const std::wstring& progId) {
    CLSID classId;
    IUnknown* object = nullptr;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId)) ||
        FAILED(GetActiveObject(classId, nullptr, &object)) || !object) {
        return nullptr;
    }
    IDispatch* dispatch = dispatchOf(object);
    return dispatch ? std::make_shared<LateBoundObject>(dispatch, tables_, progId) : nullptr;
}

ObjectPtr WinAutomation::create(const std::wstring& progId) {
    CLSID classId;
    IDispatch* dispatch = nullptr;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId)) ||
        FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(&dispatch)))) {
        throw errors::automation(L"L'objet " + progId + L" ne peut pas être créé.");
    }
    return std::make_shared<LateBoundObject>(dispatch, tables_, progId);
}
