#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <oaidl.h>
#include <string>

#include "platform/automation.h"
#include "platform/patience.h"
#include "platform/win32/com/com_ptr.h"

/// The DISPIDs already asked for: one table per class of objects.
using NameTable = std::map<std::wstring, DISPID, std::less<>>;
using NameTables = std::map<std::wstring, NameTable, std::less<>>;

/// What all late-bound objects share.
struct LateBinding {
    Patience& patience;
    NameTables tables = {};
};

/// An IDispatch driven by name.
class LateBoundObject : public AutomationObject {
 public:
    LateBoundObject(ComPtr<IDispatch> dispatch, LateBinding& binding,
                    std::wstring_view objectClass);

    Value call(std::wstring_view name, std::span<const Argument> arguments,
               std::wstring_view resultClass) override;
    void put(std::wstring_view name, const Argument& value) override;

 private:
    DISPID lookUp(std::wstring_view name);
    void invoke(std::wstring_view name, WORD flags, DISPPARAMS& parameters, VARIANT* result);
    Value valueOf(const VARIANT& variant, std::wstring_view objectClass);

    ComPtr<IDispatch> dispatch_;
    LateBinding& binding_;
    NameTable& names_;
};
