#include "driver/cad_client.h"

#include <objbase.h>

#include "driver/expected_calls.h"
#include "driver/text.h"

namespace driver {

namespace {

/// Puts an argument into a VARIANT, which then owns it.
struct PutInto {
    VARIANT& variant;

    void operator()(const std::string& text) const {
        variant.vt = VT_BSTR;
        variant.bstrVal = SysAllocString(wide(text).c_str());
    }
    void operator()(LONG number) const {
        variant.vt = VT_I4;
        variant.lVal = number;
    }
    void operator()(bool truth) const {
        variant.vt = VT_BOOL;
        variant.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(LONG* number) const {
        variant.vt = VT_BYREF | VT_I4;
        variant.plVal = number;
    }
};

CallOutcome outcomeOf(HRESULT code, VARIANT& answer) {
    CallOutcome outcome{code};
    if (answer.vt == VT_DISPATCH) outcome.object = ComPtr<IDispatch>(answer.pdispVal);
    if (answer.vt == VT_BSTR) outcome.text = utf8(answer.bstrVal);
    if (answer.vt == VT_I4) outcome.number = answer.lVal;
    if (answer.vt == VT_BOOL) outcome.number = answer.boolVal ? 1 : 0;
    VariantClear(&answer);
    return outcome;
}

}  // namespace

CallOutcome callByName(IDispatch* object, const wchar_t* name,
                       const std::vector<CallArgument>& arguments) {
    // Automation wants the last argument first.
    std::vector<VARIANT> variants(arguments.size());
    for (size_t i = 0; i < arguments.size(); ++i) {
        std::visit(PutInto{variants[arguments.size() - 1 - i]}, arguments[i]);
    }
    DISPPARAMS parameters{variants.data(), nullptr, static_cast<UINT>(variants.size()), 0};
    VARIANT answer{};
    DISPID id = 0;
    LPOLESTR spelling = const_cast<LPOLESTR>(name);
    HRESULT code = object->GetIDsOfNames(IID_NULL, &spelling, 1, 0, &id);
    if (SUCCEEDED(code)) {
        code = object->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &parameters, &answer, nullptr,
                              nullptr);
    }
    for (VARIANT& variant : variants) VariantClear(&variant);
    return outcomeOf(code, answer);
}

ComPtr<IDispatch> sessionOfProcess(DWORD processId) {
    const std::wstring name = L"SolidWorks_PID_" + std::to_wstring(processId);
    ComPtr<IRunningObjectTable> table;
    ComPtr<IMoniker> moniker;
    ComPtr<IUnknown> object;
    ComPtr<IDispatch> session;
    if (SUCCEEDED(GetRunningObjectTable(0, table.put())) &&
        SUCCEEDED(CreateItemMoniker(L"", name.c_str(), moniker.put())) &&
        SUCCEEDED(table->GetObject(moniker.get(), object.put()))) {
        object->QueryInterface(IID_IDispatch, session.putVoid());
    }
    return session;
}

OpenedDocument openDocument(IDispatch* session, const std::string& path) {
    OpenedDocument opened;
    opened.document =
        callByName(session, L"OpenDoc6",
                   {path, calls::typeCode(path), 1L, "", &opened.error, &opened.warning})
            .object;
    return opened;
}

}  // namespace driver
