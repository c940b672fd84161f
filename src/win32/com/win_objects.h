#pragma once

#include <windows.h>

#include <cstdint>
#include <oaidl.h>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "ports/automation.h"
#include "win32/com/com_ptr.h"

/// A VARIANT that clears itself.
struct OwnedVariant : VARIANT {
    OwnedVariant();
    ~OwnedVariant();
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
};

/// A BSTR that frees itself.
class OwnedBstr {
 public:
    OwnedBstr() = default;
    explicit OwnedBstr(const std::wstring& text);
    OwnedBstr(OwnedBstr&& other) noexcept : text_(other.release()) {}
    OwnedBstr& operator=(OwnedBstr&&) = delete;
    ~OwnedBstr();

    BSTR* address() { return &text_; }
    /// Leaves it to someone else to free.
    BSTR release();

 private:
    BSTR text_ = nullptr;
};

/// The text of a BSTR, which may be null.
std::wstring textIn(BSTR text);

/// What a VARIANT holds, unless it is an object.
Value valueIn(const VARIANT& variant);

/// The arguments of one call as Invoke wants them: the last one first. By-reference arguments
/// are written back by `writeBack`, after the call.
class CallArguments {
 public:
    explicit CallArguments(std::span<const Argument> arguments);

    VARIANT* data() { return variants_.data(); }
    UINT count() const { return static_cast<UINT>(variants_.size()); }
    void writeBack();

 private:
    /// A text that the server may replace.
    struct TextReference {
        std::wstring* target;
        OwnedBstr text;
    };

    void set(VARIANT& variant, const std::wstring& text);
    void set(VARIANT& variant, bool flag);
    void set(VARIANT& variant, std::int16_t number);
    void set(VARIANT& variant, std::int32_t number);
    void set(VARIANT& variant, std::wstring* text);
    void set(VARIANT& variant, std::int16_t* number);
    void set(VARIANT& variant, std::int32_t* number);

    std::vector<TextReference> texts_;
    std::vector<OwnedVariant> variants_;
};

/// An IDispatch.
class WinObject : public ServedObject {
 public:
    explicit WinObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    CallResult lookUp(std::wstring_view name, std::int32_t& member) override;
    CallResult invoke(std::int32_t member, Access access, std::span<const Argument> arguments,
                      ServersReply& reply) override;

 private:
    ComPtr<IDispatch> dispatch_;
};

/// The objects that COM knows: the running object table and the class registrations.
class WinObjectServers : public ObjectServers {
 public:
    CallResult running(const std::wstring& progId, std::shared_ptr<ServedObject>& object) override;
    CallResult runningNamed(const std::wstring& beginning,
                            std::shared_ptr<ServedObject>& object) override;
    std::shared_ptr<ServedObject> make(const std::wstring& progId) override;
};
