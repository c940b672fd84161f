#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <vector>

#include "platform/automation.h"

/// A VARIANT that clears itself.
struct OwnedVariant : VARIANT {
    OwnedVariant() { VariantInit(this); }
    ~OwnedVariant() { VariantClear(this); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
};

/// The arguments of one call as Invoke wants them: the last one first. By-reference arguments
/// are written back by `writeBack`, after the call.
class CallArguments {
 public:
    explicit CallArguments(std::span<const Argument> arguments);
    ~CallArguments();
    CallArguments(const CallArguments&) = delete;
    CallArguments& operator=(const CallArguments&) = delete;

    VARIANT* data() { return variants_.data(); }
    UINT count() const { return static_cast<UINT>(variants_.size()); }
    void writeBack();

 private:
    struct TextReference {
        std::wstring* target;
        BSTR text;
    };

    VARIANT convert(const Argument& argument);

    std::vector<TextReference> texts_;
    std::vector<VARIANT> variants_;
};

/// A BSTR of the text. Never null.
BSTR makeBstr(const std::wstring& text);
