#include "rules/late_bound_automation.h"

#include <utility>

#include "common/runtime_error.h"

ObjectPtr LateBoundAutomation::attach(const std::wstring& progId) {
    std::shared_ptr<ServedObject> object;
    const CallResult result =
        binding_.patience.call([&] { return servers_.running(progId, object); });
    if (isBusy(result)) throw callError({.result = result, .name = progId});
    if (!object) return nullptr;
    return std::make_shared<LateBoundObject>(std::move(object), binding_, progId);
}

ObjectPtr LateBoundAutomation::create(const std::wstring& progId) {
    auto object = servers_.make(progId);
    if (!object) throw errors::automation(L"L'objet " + progId + L" ne peut pas être créé.");
    return std::make_shared<LateBoundObject>(std::move(object), binding_, progId);
}
