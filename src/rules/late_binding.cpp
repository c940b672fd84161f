#include "rules/late_binding.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>
#include <variant>

#include "common/runtime_error.h"

namespace {

/// Without the file's name, which may be in the server's own words and is added by the caller.
std::optional<RuntimeError> sentenceOf(std::uint32_t number) {
    switch (number) {
        case 53:
            return errors::fileNotFound({});
        case 70:
            return errors::permissionDenied({});
        case 75:
            return errors::fileAccess({});
        case 76:
            return errors::pathNotFound({});
        default:
            return std::nullopt;
    }
}

/// The run-time error that a server names by its number (the CTL_E_ codes of olectl.h).
std::optional<RuntimeError> numberedError(CallResult code, const std::wstring& description) {
    constexpr std::uint32_t kControlErrors = 0x800A0000;  // failures of FACILITY_CONTROL
    const auto bits = static_cast<std::uint32_t>(code);
    if ((bits & 0xFFFF0000) != kControlErrors) return std::nullopt;
    auto error = sentenceOf(bits & 0xFFFF);
    if (!error) return errors::automation(description);
    if (!description.empty()) error->addLine(description);
    return error;
}

/// Whether the program that should answer is gone.
bool isGone(CallResult result) {
    constexpr CallResult kGone[] = {call_result::kDisconnected,         call_result::kServerDied,
                                    call_result::kServerDiedUnexecuted, call_result::kNotConnected,
                                    call_result::kServerUnavailable,    call_result::kCallFailed,
                                    call_result::kCallFailedUnexecuted};
    return std::ranges::find(kGone, result) != std::end(kGone);
}

RuntimeError errorOf(const CallFailure& failure) {
    const bool serverSpoke = failure.result == call_result::kException;
    const CallResult code = serverSpoke ? failure.serverCode : failure.result;
    if (auto numbered = numberedError(code, failure.description)) return *numbered;
    if (isBusy(failure.result)) {
        return errors::automation(L"SolidWorks est occupé et n'a pas pris l'appel.");
    }
    if (failure.result == call_result::kDisconnected) {
        return errors::automation(
            L"Le document a été fermé dans SolidWorks, ou la session SolidWorks s'est arrêtée.");
    }
    if (isGone(failure.result)) {
        return errors::automation(
            L"La session SolidWorks ne répond plus : elle a été fermée ou s'est arrêtée.");
    }
    switch (failure.result) {
        case call_result::kUnknownName:
        case call_result::kMemberNotFound:
            return errors::unknownMember(std::wstring(failure.name));
        case call_result::kTypeMismatch:
            return errors::typeMismatch(L"un argument d'un autre type était attendu par " +
                                        std::wstring(failure.name));
        default:
            return errors::automation(failure.description);
    }
}

}  // namespace

bool isBusy(CallResult result) {
    return result == call_result::kRejected || result == call_result::kRetryLater;
}

RuntimeError callError(const CallFailure& failure) {
    RuntimeError error = errorOf(failure);
    error.sessionLost = isBusy(failure.result) || isGone(failure.result);
    return error;
}

AutomationObject::AutomationObject(std::shared_ptr<ServedObject> object, LateBinding& binding,
                                   std::wstring_view objectClass)
    : object_(std::move(object)),
      binding_(binding),
      numbers_(objectClass.empty() ? ownNumbers_ : binding.tables[std::wstring(objectClass)]) {}

Value AutomationObject::call(std::wstring_view name, std::span<const Argument> arguments,
                             std::wstring_view resultClass) {
    ServersReply reply = invoke(name, Access::Call, arguments);
    if (!reply.object) return reply.value;
    return std::make_shared<AutomationObject>(std::move(reply.object), binding_, resultClass);
}

void AutomationObject::put(std::wstring_view name, const Argument& value) {
    invoke(name, Access::Put, {&value, 1});
}

std::int32_t AutomationObject::numberOf(std::wstring_view name) {
    if (const auto known = numbers_.find(name); known != numbers_.end()) return known->second;
    std::int32_t member = 0;
    const CallResult result = binding_.patience.call([&] { return object_->lookUp(name, member); });
    if (result < 0) throw callError({.result = result, .name = name});
    numbers_.emplace(name, member);
    return member;
}

CallResult AutomationObject::invokeOnce(std::wstring_view name, Access access,
                                        std::span<const Argument> arguments, ServersReply& reply) {
    const std::int32_t member = numberOf(name);
    return binding_.patience.call(
        [&] { return object_->invoke(member, access, arguments, reply); });
}

ServersReply AutomationObject::invoke(std::wstring_view name, Access access,
                                      std::span<const Argument> arguments) {
    ServersReply reply;
    CallResult result = invokeOnce(name, access, arguments, reply);
    if (result == call_result::kMemberNotFound) {
        // The object may be of another kind than the one that the name was looked up for.
        numbers_.erase(numbers_.find(name));
        result = invokeOnce(name, access, arguments, reply);
    }
    if (result < 0) throw callError({result, name, reply.errorCode, reply.description});
    return reply;
}

ObjectPtr Automation::attach(const std::wstring& progId) {
    return attachBy([&](auto& object) { return servers_.running(progId, object); }, progId);
}

ObjectPtr Automation::attachNamed(const std::wstring& beginning, const std::wstring& progId) {
    return attachBy([&](auto& object) { return servers_.runningNamed(beginning, object); }, progId);
}

ObjectPtr Automation::attachBy(const Attempt& attempt, const std::wstring& progId) {
    std::shared_ptr<ServedObject> object;
    const CallResult result = binding_.patience.call([&] { return attempt(object); });
    if (isBusy(result)) throw callError({.result = result, .name = progId});
    if (!object) return nullptr;
    return std::make_shared<AutomationObject>(std::move(object), binding_, progId);
}

ObjectPtr Automation::create(const std::wstring& progId) {
    auto object = servers_.make(progId);
    if (!object) throw errors::automation(L"L'objet " + progId + L" ne peut pas être créé.");
    return std::make_shared<AutomationObject>(std::move(object), binding_, progId);
}

Value callMethod(const ObjectPtr& object, std::wstring_view name,
                 std::initializer_list<Argument> arguments, std::wstring_view resultClass) {
    if (!object) throw errors::emptyObject();
    return object->call(name, {arguments.begin(), arguments.size()}, resultClass);
}

void putProperty(const ObjectPtr& object, std::wstring_view name, const Argument& value) {
    if (!object) throw errors::emptyObject();
    object->put(name, value);
}

std::wstring textOf(const Value& value) {
    if (const auto* text = std::get_if<std::wstring>(&value)) return *text;
    if (std::holds_alternative<std::monostate>(value)) return {};
    throw errors::typeMismatch(L"un texte était attendu de SolidWorks");
}

ObjectPtr objectOf(const Value& value) {
    const auto* object = std::get_if<ObjectPtr>(&value);
    return object ? *object : nullptr;
}

bool isTrue(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* number = std::get_if<std::int16_t>(&value)) return *number == -1;
    if (const auto* number = std::get_if<std::int32_t>(&value)) return *number == -1;
    return false;
}
