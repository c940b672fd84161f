#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "common/runtime_error.h"
#include "ports/automation.h"
#include "rules/patience.h"

namespace call_result {
inline constexpr CallResult failure(std::uint32_t code) { return static_cast<CallResult>(code); }

inline constexpr CallResult kMemberNotFound = failure(0x80020003);
inline constexpr CallResult kTypeMismatch = failure(0x80020005);
inline constexpr CallResult kUnknownName = failure(0x80020006);
inline constexpr CallResult kException = failure(0x80020009);
inline constexpr CallResult kRejected = failure(0x80010001);
inline constexpr CallResult kRetryLater = failure(0x8001010A);
inline constexpr CallResult kInSentMessage = failure(0x8001010D);
inline constexpr CallResult kServerDied = failure(0x80010007);
inline constexpr CallResult kServerDiedUnexecuted = failure(0x80010012);
inline constexpr CallResult kDisconnected = failure(0x80010108);
inline constexpr CallResult kNotConnected = failure(0x800401FD);
inline constexpr CallResult kServerUnavailable = failure(0x800706BA);
inline constexpr CallResult kCallFailed = failure(0x800706BE);
inline constexpr CallResult kCallFailedUnexecuted = failure(0x800706BF);
}  // namespace call_result

/// Whether the application was too busy to take the call, which then did not run.
bool isBusy(CallResult result);

/// A late-bound call that failed.
struct CallFailure {
    CallResult result;
    std::wstring_view name;         ///< the member's, as the call spelled it
    CallResult serverCode = 0;      ///< the server's own, when the result is kException
    std::wstring description = {};  ///< in the server's words, if any
};

/// The run-time error for a failed call: 13, 438 or 440, or the one that the server names by its
/// number. The session is lost when it no longer answers, or when the user gave up waiting for it.
RuntimeError callError(const CallFailure& failure);

/// The numbers of the members looked up so far: a table for each class of objects.
using MemberNumbers = std::map<std::wstring, std::int32_t, std::less<>>;
using MemberTables = std::map<std::wstring, MemberNumbers, std::less<>>;

/// What all late-bound objects share.
struct LateBinding {
    Patience& patience;
    MemberTables tables = {};
};

/// An object of another program, late-bound: called by the names of its members. Refused calls are
/// repeated with patience.
class AutomationObject {
 public:
    /// An object without a class shares no numbers: its names are looked up for it alone.
    AutomationObject(std::shared_ptr<ServedObject> object, LateBinding& binding,
                     std::wstring_view objectClass);
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    /// Calls a method, spelled as the server is to receive it, with its arguments in order.
    /// `resultClass` is the class of an object that it returns: since a name is looked up once for
    /// each class, it must have the same number for all objects of one. Raises 13, 438 or 440 as
    /// the server refuses or fails.
    Value call(std::wstring_view name, std::span<const Argument> arguments,
               std::wstring_view resultClass);

    /// Sets a property. Raises as `call` does.
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

    /// The first running object whose display name begins so, in any letter case, as one of the
    /// class `progId`; null when there is none. Raises as `attach`.
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

/// Whether it is the automation boolean true (all bits set) rather than anything else.
bool isTrue(const Value& value);
