#include "rules/late_binding.h"

#include <utility>

#include "common/runtime_error.h"

LateBoundObject::LateBoundObject(std::shared_ptr<ServedObject> object, LateBinding& binding,
                                 std::wstring_view objectClass)
    : object_(std::move(object)),
      binding_(binding),
      numbers_(objectClass.empty() ? ownNumbers_ : binding.tables[std::wstring(objectClass)]) {}

Value LateBoundObject::call(std::wstring_view name, std::span<const Argument> arguments,
                            std::wstring_view resultClass) {
    ServersReply reply = invoke(name, Access::Call, arguments);
    if (!reply.object) return reply.value;
    return std::make_shared<LateBoundObject>(std::move(reply.object), binding_, resultClass);
}

void LateBoundObject::put(std::wstring_view name, const Argument& value) {
    invoke(name, Access::Put, {&value, 1});
}

std::int32_t LateBoundObject::numberOf(std::wstring_view name) {
    if (const auto known = numbers_.find(name); known != numbers_.end()) return known->second;
    std::int32_t member = 0;
    const CallResult result = binding_.patience.call([&] { return object_->lookUp(name, member); });
    if (result < 0) throw callError({.result = result, .name = name});
    numbers_.emplace(name, member);
    return member;
}

CallResult LateBoundObject::invokeOnce(std::wstring_view name, Access access,
                                       std::span<const Argument> arguments, ServersReply& reply) {
    const std::int32_t member = numberOf(name);
    return binding_.patience.call(
        [&] { return object_->invoke(member, access, arguments, reply); });
}

ServersReply LateBoundObject::invoke(std::wstring_view name, Access access,
                                     std::span<const Argument> arguments) {
    ServersReply reply;
    CallResult result = invokeOnce(name, access, arguments, reply);
    if (result == call_result::kMemberNotFound) {
        // The object may be of another kind than those that the name was looked up for.
        numbers_.erase(numbers_.find(name));
        result = invokeOnce(name, access, arguments, reply);
    }
    if (result < 0) throw callError({result, name, reply.errorCode, reply.description});
    return reply;
}

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
