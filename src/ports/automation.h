#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

// Objects of other programs as the machine offers them: their members have numbers. The core calls
// these by name (rules/late_binding.h).

class AutomationObject;
using ObjectPtr = std::shared_ptr<AutomationObject>;

/// What a call returns. A null ObjectPtr is an object that the server left empty.
using Value =
    std::variant<std::monostate, std::wstring, bool, std::int16_t, std::int32_t, ObjectPtr>;

/// One argument. A pointer is passed by reference, and what the server changes is written back. The
/// C++ type decides the automation type (int16_t: VT_I2, int32_t: VT_I4).
using Argument = std::variant<std::wstring, bool, std::int16_t, std::int32_t, std::wstring*,
                              std::int16_t*, std::int32_t*>;

/// The result of a call: a HRESULT (winerror.h), negative when it failed.
using CallResult = std::int32_t;

/// What a server answers beside the result code.
struct ServersReply {
    Value value = {};                                 ///< what it returns, unless an object
    std::shared_ptr<class ServedObject> object = {};  ///< the object it returns, if any
    CallResult errorCode = 0;                         ///< its own number for a failure …
    std::wstring description = {};                    ///< … and its own words
};

/// An object, as its server offers it.
class ServedObject {
 public:
    enum class Access { Call, Put };

    virtual ~ServedObject() = default;
    virtual CallResult lookUp(std::wstring_view name, std::int32_t& member) = 0;
    virtual CallResult invoke(std::int32_t member, Access access,
                              std::span<const Argument> arguments, ServersReply& reply) = 0;
};

/// Where objects of other programs are found.
class ObjectServers {
 public:
    virtual ~ObjectServers() = default;

    /// The running object registered for a class. Leaves `object` empty when there is none, or when
    /// it is too busy to answer.
    virtual CallResult running(const std::wstring& progId,
                               std::shared_ptr<ServedObject>& object) = 0;
    /// The same for the first object whose display name begins so, in any letter case.
    virtual CallResult runningNamed(const std::wstring& beginning,
                                    std::shared_ptr<ServedObject>& object) = 0;
    /// A new object, null when none can be made.
    virtual std::shared_ptr<ServedObject> make(const std::wstring& progId) = 0;
};
