#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "call.h"

class DispatchObject;

/// A method or property of an automation object.
struct Member {
    using Action = void (*)(DispatchObject&, Call&);

    const wchar_t* name;  ///< as the release's own documentation spells it
    UINT arity;
    Action invoke;            ///< the method, or the property's reading
    Action put = nullptr;     ///< the property's setting
    bool isProperty = false;  ///< read without parentheses
};

template <typename Object>
Object& ownerOf(DispatchObject& object, void (Object::*)(Call&)) {
    return static_cast<Object&>(object);
}

/// Turns a member function into what a table of members holds.
template <auto Function>
void perform(DispatchObject& object, Call& call) {
    (ownerOf(object, Function).*Function)(call);
}

/// The DISPIDs of one kind of object, and how clients last spelt the name of each.
class MemberNames {
 public:
    MemberNames(std::span<const Member> members, DISPID first);

    /// The DISPID of a name, matched without regard to case. Notes the spelling.
    std::optional<DISPID> lookUp(std::wstring_view name);

    /// Null for a DISPID that was never given out.
    const Member* find(DISPID id) const;

    const std::wstring& spelling(DISPID id) const;

 private:
    std::span<const Member> members_;
    DISPID first_;
    std::vector<std::wstring> spellings_;
};
