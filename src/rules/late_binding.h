#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "ports/automation.h"
#include "rules/patience.h"

/// What a server answers to a call beside its result code.
struct ServersReply {
    Value value;                                 ///< what it gave, unless that is an object
    std::shared_ptr<class ServedObject> object;  ///< the object it gave, if any
    CallResult errorCode = 0;                    ///< why it failed, in its own number …
    std::wstring description;                    ///< … and its own words
};

/// An object as its server offers it: by the numbers of its members.
class ServedObject {
 public:
    enum class Access { Call, Put };

    virtual ~ServedObject() = default;
    virtual CallResult lookUp(std::wstring_view name, std::int32_t& member) = 0;
    virtual CallResult invoke(std::int32_t member, Access access,
                              std::span<const Argument> arguments, ServersReply& reply) = 0;
};

/// The members' numbers already asked for: one table per class of objects.
using MemberNumbers = std::map<std::wstring, std::int32_t, std::less<>>;
using MemberTables = std::map<std::wstring, MemberNumbers, std::less<>>;

/// What all late-bound objects share.
struct LateBinding {
    Patience& patience;
    MemberTables tables = {};
};

/// An object of another program, driven by name. Refused calls are repeated with patience.
class LateBoundObject : public AutomationObject {
 public:
    /// Of an object without a class the names are looked up afresh.
    LateBoundObject(std::shared_ptr<ServedObject> object, LateBinding& binding,
                    std::wstring_view objectClass);
    LateBoundObject(const LateBoundObject&) = delete;
    LateBoundObject& operator=(const LateBoundObject&) = delete;

    Value call(std::wstring_view name, std::span<const Argument> arguments,
               std::wstring_view resultClass) override;
    void put(std::wstring_view name, const Argument& value) override;

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

/// Where objects of other programs are found.
class ObjectServers {
 public:
    virtual ~ObjectServers() = default;

    /// The running object registered for a class; leaves `object` empty when there is none, or when
    /// it is too busy to be had now.
    virtual CallResult running(const std::wstring& progId,
                               std::shared_ptr<ServedObject>& object) = 0;
    /// The same of the first one whose display name begins so, in any letter case.
    virtual CallResult runningNamed(const std::wstring& beginning,
                                    std::shared_ptr<ServedObject>& object) = 0;
    /// A new object, null when none can be made.
    virtual std::shared_ptr<ServedObject> make(const std::wstring& progId) = 0;
};

/// Late-bound objects of those servers. Must outlive the objects.
class LateBoundAutomation : public Automation {
 public:
    LateBoundAutomation(ObjectServers& servers, Patience& patience)
        : servers_(servers), binding_{patience} {}

    ObjectPtr attach(const std::wstring& progId) override;
    ObjectPtr attachNamed(const std::wstring& beginning, const std::wstring& progId) override;
    ObjectPtr create(const std::wstring& progId) override;

 private:
    using Attempt = std::function<CallResult(std::shared_ptr<ServedObject>& object)>;
    ObjectPtr attachBy(const Attempt& attempt, const std::wstring& progId);

    ObjectServers& servers_;
    LateBinding binding_;
};
