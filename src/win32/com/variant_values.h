#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <vector>

#include "ports/automation.h"

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
