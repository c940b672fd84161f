#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>

#include "ports/automation.h"
#include "rules/patience.h"

/// The members' numbers already asked for: one table per class of objects.
using MemberNumbers = std::map<std::wstring, std::int32_t, std::less<>>;
using MemberTables = std::map<std::wstring, MemberNumbers, std::less<>>;

/// What all late-bound objects share.
struct LateBinding {
    Patience& patience;
    MemberTables tables = {};
};

/// An object of another program, driven late-bound, by the names of its members. Refused calls are
/// repeated with patience.
class AutomationObject {
 public:
    /// Of an object without a class the names are looked up afresh.
    AutomationObject(std::shared_ptr<ServedObject> object, LateBinding& binding,
                     std::wstring_view objectClass);
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    /// Calls the method `name`, spelled as the server is to receive it, arguments in order.
    /// `resultClass` names the class of an object it returns: objects of one class must answer a
    /// name alike, for each name is looked up only once per class. An object without a class
    /// shares none: its names are looked up afresh.
    /// Raises 13, 438 or 440 as the server refuses or fails.
    Value call(std::wstring_view name, std::span<const Argument> arguments,
               std::wstring_view resultClass);

    /// Sets the property `name`. Raises as `call` does.
    void put(std::wstring_view name, const Argument& value);

 private:
    using Access = ServedObject::Access;

    std::int32_t numberOf(std::wstring_view name);
    CallResult invokeOnce(std::wstring_view name, Access access,
                          std::span<const Argument> arguments, ServersReply& reply);
    ServersReply invoke(std::wstring_view name, Access access, std::span<const Argument> arguments);

    std::shared_ptr<ServedObject> object_;
    LateBinding& binding_;
    MemberNumbers ownNumbers_;
    MemberNumbers& numbers_;
};

/// Objects of other programs, found by their class. Must outlive them.
class Automation {
 public:
    Automation(ObjectServers& servers, Patience& patience)
        : servers_(servers), binding_{patience} {}

    /// The running object registered for `progId`; never starts one. Null when there is none.
    /// Raises 440 when it is busy and the user gives up waiting.
    ObjectPtr attach(const std::wstring& progId);

    /// The first running object whose display name begins so, in any letter case; null when there
    /// is none. `progId` tells what it is. Raises as `attach`.
    ObjectPtr attachNamed(const std::wstring& beginning, const std::wstring& progId);

    /// A new object of the class `progId`. Raises 440 when the class can't be created.
    ObjectPtr create(const std::wstring& progId);

 private:
    using Attempt = std::function<CallResult(std::shared_ptr<ServedObject>& object)>;
    ObjectPtr attachBy(const Attempt& attempt, const std::wstring& progId);

    ObjectServers& servers_;
    LateBinding binding_;
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
