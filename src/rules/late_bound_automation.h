#pragma once

#include <functional>
#include <memory>
#include <string>

#include "rules/late_bound_object.h"

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
