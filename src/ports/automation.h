#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

class AutomationObject;
using ObjectPtr = std::shared_ptr<AutomationObject>;

/// What a call gives back. An object that the server left empty is a null ObjectPtr.
using Value =
    std::variant<std::monostate, std::wstring, bool, std::int16_t, std::int32_t, ObjectPtr>;

/// One argument, passed by value or, as a pointer, by reference: then the server's change is
/// written back. The C++ type decides the automation type (int16_t: VT_I2, int32_t: VT_I4).
using Argument = std::variant<std::wstring, bool, std::int16_t, std::int32_t, std::wstring*,
                              std::int16_t*, std::int32_t*>;

/// An object of another program, driven late-bound, by the names of its members.
class AutomationObject {
 public:
    virtual ~AutomationObject() = default;

    /// Calls the method `name`, spelled as the server is to receive it, arguments in order.
    /// `resultClass` names the class of an object it returns: objects of one class must answer a
    /// name alike, for each name is looked up only once per class. An object without a class
    /// shares none: its names are looked up afresh.
    /// Raises 13, 438 or 440 as the server refuses or fails.
    virtual Value call(std::wstring_view name, std::span<const Argument> arguments,
                       std::wstring_view resultClass) = 0;

    /// Sets the property `name`. Raises as `call` does.
    virtual void put(std::wstring_view name, const Argument& value) = 0;
};

class Automation {
 public:
    virtual ~Automation() = default;

    /// The running object registered for `progId`; never starts one. Null when there is none.
    /// Raises 440 when it is busy and the user gives up waiting.
    virtual ObjectPtr attach(const std::wstring& progId) = 0;

    /// The first running object whose display name begins so, in any letter case; null when there
    /// is none. `progId` tells what it is. Raises as `attach`.
    virtual ObjectPtr attachNamed(const std::wstring& beginning, const std::wstring& progId) = 0;

    /// A new object of the class `progId`. Raises 440 when the class can't be created.
    virtual ObjectPtr create(const std::wstring& progId) = 0;
};

/// Calls a method of an object that may be empty. Raises 91 when it is.
Value callMethod(const ObjectPtr& object, std::wstring_view name,
                 std::initializer_list<Argument> arguments = {},
                 std::wstring_view resultClass = {});

/// Sets a property of an object that may be empty. Raises 91 when it is.
void putProperty(const ObjectPtr& object, std::wstring_view name, const Argument& value);

/// The text of a call's result. Raises 13 when it is something else.
std::wstring textOf(const Value& value);

/// The object of a call's result, null when it holds none.
ObjectPtr objectOf(const Value& value);

/// True for the automation boolean true (all bits set) and nothing else.
bool isTrue(const Value& value);
