#include "rules/late_bound_automation.h"

#include <utility>

#include "common/runtime_error.h"

ObjectPtr LateBoundAutomation::attach(const std::wstring& progId) {
    return attachBy([&](auto& object) { return servers_.running(progId, object); }, progId);
}

ObjectPtr LateBoundAutomation::attachNamed(const std::wstring& beginning,
                                           const std::wstring& progId) {
    return attachBy([&](auto& object) { return servers_.runningNamed(beginning, object); }, progId);
}

ObjectPtr LateBoundAutomation::attachBy(const Attempt& attempt, const std::wstring& progId) {
    std::shared_ptr<ServedObject> object;
    const CallResult result = binding_.patience.call([&] { return attempt(object); });
    if (isBusy(result)) throw callError({.result = result, .name = progId});
    if (!object) return nullptr;
    return std::make_shared<LateBoundObject>(std::move(object), binding_, progId);
}

ObjectPtr LateBoundAutomation::create(const std::wstring& progId) {
    auto object = servers_.make(progId);
    if (!object) throw errors::automation(L"L'objet " + progId + L" ne peut pas être créé.");
    return std::make_shared<LateBoundObject>(std::move(object), binding_, progId);
}
