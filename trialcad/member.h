#pragma once

#include "call.h"

class AutomationObject;

/// A method or property of an automation object.
struct Member {
    using Action = void (*)(AutomationObject&, Call&);

    const wchar_t* name;  ///< as the release's own documentation spells it
    UINT arity;
    Action invoke;            ///< the method, or the property's reading
    Action put = nullptr;     ///< the property's setting
    bool isProperty = false;  ///< read without parentheses
};

template <typename Object>
Object& ownerOf(AutomationObject& object, void (Object::*)(Call&)) {
    return static_cast<Object&>(object);
}

/// Turns a member function into what a table of members holds.
template <auto Function>
void perform(AutomationObject& object, Call& call) {
    (ownerOf(object, Function).*Function)(call);
}
