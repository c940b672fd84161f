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
    Action invoke;            ///< calls the method, or reads the property
    Action put = nullptr;     ///< sets the property
    bool isProperty = false;  ///< it is journalled without parentheses
};

template <typename Object>
Object& ownerOf(DispatchObject& object, void (Object::*)(Call&)) {
    return static_cast<Object&>(object);
}

/// Makes an entry of a table of members from a member function.
template <auto Function>
void perform(DispatchObject& object, Call& call) {
    (ownerOf(object, Function).*Function)(call);
}

/// The DISPIDs of one kind of object, and how clients last spelled each name.
class MemberNames {
 public:
    MemberNames(std::span<const Member> members, DISPID first);

    /// The DISPID of a name, matched in any case. Notes the spelling.
    std::optional<DISPID> lookUp(std::wstring_view name);

    /// The member of a DISPID; null for one that was never given out.
    const Member* find(DISPID id) const;

    const std::wstring& spelling(DISPID id) const;

 private:
    std::span<const Member> members_;
    DISPID first_;
    std::vector<std::wstring> spellings_;
};
