#include "ports/automation.h"

#include "common/runtime_error.h"

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
