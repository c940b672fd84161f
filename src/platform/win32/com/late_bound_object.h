#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <oaidl.h>
#include <string>

#include "platform/automation.h"

/// The DISPIDs already asked for: one table per class of objects.
using NameTable = std::map<std::wstring, DISPID, std::less<>>;
using NameTables = std::map<std::wstring, NameTable, std::less<>>;

/// An IDispatch driven by name.
class LateBoundObject : public AutomationObject {
 public:
    /// Takes over one reference to `dispatch`.
    LateBoundObject(IDispatch* dispatch, NameTables& tables, std::wstring_view objectClass);
    ~LateBoundObject() override;
    LateBoundObject(const LateBoundObject&) = delete;
    LateBoundObject& operator=(const LateBoundObject&) = delete;

    Value call(std::wstring_view name, std::span<const Argument> arguments,
               std::wstring_view resultClass) override;
    void put(std::wstring_view name, const Argument& value) override;

 private:
    DISPID lookUp(std::wstring_view name);
    void invoke(std::wstring_view name, WORD flags, DISPPARAMS& parameters, VARIANT* result);
    Value valueOf(VARIANT& variant, std::wstring_view objectClass);

    IDispatch* dispatch_;
    NameTables& tables_;
    NameTable& names_;
};
