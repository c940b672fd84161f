#include "win32/com/win_objects.h"

#include <cstdint>
#include <new>
#include <objbase.h>
#include <oleauto.h>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "common/text.h"
#include "rules/late_binding.h"

namespace {

/// A VARIANT that clears itself.
struct OwnedVariant : VARIANT {
    OwnedVariant() { VariantInit(this); }
    ~OwnedVariant() { VariantClear(this); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
};

/// A BSTR that frees itself.
class OwnedBstr {
 public:
    explicit OwnedBstr(const std::wstring& text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
        if (!text_) throw std::bad_alloc();
    }
    OwnedBstr(OwnedBstr&& other) noexcept : text_(other.release()) {}
    OwnedBstr& operator=(OwnedBstr&&) = delete;
    ~OwnedBstr() { SysFreeString(text_); }

    BSTR* address() { return &text_; }
    /// Leaves it to someone else to free.
    BSTR release() { return std::exchange(text_, nullptr); }

 private:
    BSTR text_;
};

/// The text of a BSTR, which may be null.
std::wstring textIn(BSTR text) { return text ? std::wstring(text, SysStringLen(text)) : L""; }

/// What a VARIANT holds, unless it is an object.
Value valueIn(const VARIANT& variant) {
    switch (V_VT(&variant)) {
        case VT_BSTR:
            return textIn(V_BSTR(&variant));
        case VT_BOOL:
            return V_BOOL(&variant) == VARIANT_TRUE;
        case VT_I2:
            return static_cast<std::int16_t>(V_I2(&variant));
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&variant));
        default:
            return std::monostate();
    }
}

/// The arguments of one call as Invoke wants them, the last one first. `writeBack` writes back
/// those passed by reference, after the call.
class CallArguments {
 public:
    explicit CallArguments(std::span<const Argument> arguments) : variants_(arguments.size()) {
        // The VARIANTs point into this table, which therefore must not move.
        texts_.reserve(arguments.size());
        auto variant = variants_.rbegin();
        for (const Argument& argument : arguments) {
            std::visit([&](const auto& value) { set(*variant, value); }, argument);
            ++variant;
        }
    }

    VARIANT* data() { return variants_.data(); }
    UINT count() const { return static_cast<UINT>(variants_.size()); }
    void writeBack() {
        for (TextReference& text : texts_) *text.target = textIn(*text.reference.address());
    }

 private:
    /// A text that the server may replace.
    struct TextReference {
        std::wstring* target;
        OwnedBstr reference;
    };

    static void set(VARIANT& variant, const std::wstring& text) {
        V_BSTR(&variant) = OwnedBstr(text).release();
        V_VT(&variant) = VT_BSTR;
    }
    static void set(VARIANT& variant, bool flag) {
        V_VT(&variant) = VT_BOOL;
        V_BOOL(&variant) = flag ? VARIANT_TRUE : VARIANT_FALSE;
    }
    static void set(VARIANT& variant, std::int16_t number) {
        V_VT(&variant) = VT_I2;
        V_I2(&variant) = number;
    }
    static void set(VARIANT& variant, std::int32_t number) {
        V_VT(&variant) = VT_I4;
        V_I4(&variant) = number;
    }
    void set(VARIANT& variant, std::wstring* text) {
        texts_.push_back({text, OwnedBstr(*text)});
        V_VT(&variant) = VT_BYREF | VT_BSTR;
        V_BSTRREF(&variant) = texts_.back().reference.address();
    }
    static void set(VARIANT& variant, std::int16_t* number) {
        V_VT(&variant) = VT_BYREF | VT_I2;
        V_I2REF(&variant) = number;
    }
    static void set(VARIANT& variant, std::int32_t* number) {
        V_VT(&variant) = VT_BYREF | VT_I4;
        V_I4REF(&variant) = reinterpret_cast<LONG*>(number);
    }

    std::vector<TextReference> texts_;
    std::vector<OwnedVariant> variants_;
};

/// How the server explains its failure.
struct ServersWords : EXCEPINFO {
    ServersWords() : EXCEPINFO{} {}
    ~ServersWords() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
    ServersWords(const ServersWords&) = delete;
    ServersWords& operator=(const ServersWords&) = delete;

    std::wstring description() {
        if (pfnDeferredFillIn) pfnDeferredFillIn(this);
        return textIn(bstrDescription);
    }
};

std::wstring displayName(IMoniker* moniker) {
    ComPtr<IBindCtx> context;
    wchar_t* text = nullptr;
    if (FAILED(CreateBindCtx(0, context.put())) ||
        FAILED(moniker->GetDisplayName(context.get(), nullptr, &text))) {
        return {};
    }
    const std::wstring name(text);
    CoTaskMemFree(text);
    return name;
}

void take(const VARIANT& result, ServersReply& reply) {
    if (V_VT(&result) != VT_DISPATCH) {
        reply.value = valueIn(result);
    } else if (V_DISPATCH(&result)) {
        reply.object = std::make_shared<WinObject>(ComPtr(V_DISPATCH(&result)));
    } else {
        reply.value = ObjectPtr();
    }
}

}  // namespace

CallResult WinObject::lookUp(std::wstring_view name, std::int32_t& member) {
    std::wstring spelled(name);
    LPOLESTR names[] = {spelled.data()};
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    member = id;
    return result;
}

CallResult WinObject::invoke(std::int32_t member, Access access,
                             std::span<const Argument> arguments, ServersReply& reply) {
    const bool put = access == Access::Put;
    const WORD flags = put ? DISPATCH_PROPERTYPUT : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    CallArguments variants(arguments);
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{variants.data(), put ? &named : nullptr, variants.count(), put ? 1U : 0U};
    OwnedVariant result;
    ServersWords words;
    // Lets a dialog that the server opens during the call come forward, if we may grant that.
    CoAllowSetForegroundWindow(dispatch_.get(), nullptr);
    const HRESULT outcome =
        dispatch_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                          put ? nullptr : &result, &words, nullptr);
    if (SUCCEEDED(outcome)) {
        variants.writeBack();
        take(result, reply);
    } else {
        reply.description = words.description();
        reply.errorCode = words.scode;
    }
    return outcome;
}

CallResult WinObjectServers::running(const std::wstring& progId,
                                     std::shared_ptr<ServedObject>& object) {
    CLSID classId;
    ComPtr<IUnknown> found;
    ComPtr<IDispatch> dispatch;
    HRESULT result = CLSIDFromProgID(progId.c_str(), &classId);
    if (SUCCEEDED(result)) result = GetActiveObject(classId, nullptr, found.put());
    if (SUCCEEDED(result)) result = found->QueryInterface(IID_IDispatch, dispatch.putVoid());
    if (dispatch) object = std::make_shared<WinObject>(dispatch);
    return result;
}

CallResult WinObjectServers::runningNamed(const std::wstring& beginning,
                                          std::shared_ptr<ServedObject>& object) {
    ComPtr<IRunningObjectTable> table;
    ComPtr<IEnumMoniker> all;
    HRESULT result = GetRunningObjectTable(0, table.put());
    if (SUCCEEDED(result)) result = table->EnumRunning(all.put());
    if (FAILED(result)) return result;
    for (ComPtr<IMoniker> each; all->Next(1, each.put(), nullptr) == S_OK;) {
        const std::wstring name = displayName(each.get());
        if (!equalIgnoringCase(name.substr(0, beginning.size()), beginning)) continue;
        ComPtr<IUnknown> found;
        ComPtr<IDispatch> dispatch;
        result = table->GetObject(each.get(), found.put());
        if (SUCCEEDED(result)) result = found->QueryInterface(IID_IDispatch, dispatch.putVoid());
        if (dispatch) object = std::make_shared<WinObject>(dispatch);
        // An object whose program has died stays in the table for a while.
        if (object || isBusy(result)) return result;
    }
    return MK_E_UNAVAILABLE;
}

std::shared_ptr<ServedObject> WinObjectServers::make(const std::wstring& progId) {
    CLSID classId;
    ComPtr<IDispatch> dispatch;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId)) ||
        FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                dispatch.putVoid()))) {
        return nullptr;
    }
    return std::make_shared<WinObject>(dispatch);
}
