#include "fakes/fake_automation.h"

#include "common/runtime_error.h"

namespace {

struct ArgumentText {
    std::wstring operator()(const std::wstring& text) const { return L'"' + text + L'"'; }
    std::wstring operator()(bool flag) const { return flag ? L"True" : L"False"; }
    std::wstring operator()(std::int16_t number) const { return std::to_wstring(number) + L":i2"; }
    std::wstring operator()(std::int32_t number) const { return std::to_wstring(number) + L":i4"; }
    template <class Type>
    std::wstring operator()(Type* reference) const {
        return L'&' + (*this)(*reference);
    }
};

/// The text of an argument, by value or by reference.
std::wstring textArgument(const Argument& argument) {
    if (auto* const* reference = std::get_if<std::wstring*>(&argument)) return **reference;
    return std::get<std::wstring>(argument);
}

std::wstring fileName(const std::wstring& path) { return path.substr(path.rfind(L'\\') + 1); }

}  // namespace

Value FakeObject::call(std::wstring_view name, std::span<const Argument> arguments,
                       std::wstring_view) {
    std::wstring line = namePrefix + std::wstring(name) + L'(';
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        line += (i == 0 ? L"" : L", ") + std::visit(ArgumentText(), arguments[i]);
    }
    journal.push_back(line + L')');
    const auto answer = answers.find(name);
    if (answer == answers.end()) throw errors::unknownMember(std::wstring(name));
    return answer->second(arguments);
}

void FakeObject::put(std::wstring_view name, const Argument& value) {
    journal.push_back(namePrefix + std::wstring(name) + L" = " + std::visit(ArgumentText(), value));
}

ObjectPtr FakeAutomation::attach(const std::wstring& progId) {
    journal.push_back(L"attach " + progId);
    return makeApplication();
}

ObjectPtr FakeAutomation::create(const std::wstring& progId) {
    journal.push_back(L"create " + progId);
    return makeFileSystem();
}

ObjectPtr FakeAutomation::makeApplication() {
    auto application = std::make_shared<FakeObject>(journal);
    const auto open = [this](auto arguments) { return document(textArgument(arguments[0])); };
    application->answers = {
        {L"RevisionNumber", [this](auto) { return revision; }},
        {L"GetCurrentWorkingDirectory", [this](auto) { return workingDirectory; }},
        {L"OpenDoc6", open},
        {L"ActivateDoc2", open},
        {L"closedoc", [](auto) { return Value(); }},
        {L"GetSearchFolders", [this](auto) { return searchFolders; }},
        {L"setsearchfolders",
         [this](auto arguments) {
             searchFolders = textArgument(arguments[1]);
             return setSearchFoldersResult;
         }},
    };
    for (const auto& [name, answer] : overrides) application->answers[name] = answer;
    return application;
}

Value FakeAutomation::document(const std::wstring& path) {
    if (!documentsOpen) return ObjectPtr();
    const std::wstring name = fileName(path);
    auto result = std::make_shared<FakeObject>(journal, name + L'.');
    result->answers = {
        {L"GetTitle", [name](auto) { return name; }},
        {L"ForceRebuild3", [](auto) { return true; }},
        {L"save2", [](auto) { return Value(std::int32_t{0}); }},
        {L"ViewZoomtofit2", [](auto) { return Value(); }},
    };
    for (const auto& [method, answer] : overrides) result->answers[method] = answer;
    return ObjectPtr(result);
}

ObjectPtr FakeAutomation::makeFileSystem() {
    auto fileSystem = std::make_shared<FakeObject>(journal, L"Fso.");
    fileSystem->answers = {
        {L"fileExists", [this](auto arguments) { return fileExists(textArgument(arguments[0])); }},
    };
    return fileSystem;
}
