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

}  // namespace

struct FakeAutomation::Object : AutomationObject {
    explicit Object(FakeAutomation& all, std::wstring itsName = {})
        : server(all), name(std::move(itsName)) {}

    FakeAutomation& server;
    std::wstring name;

    std::wstring prefix() const { return name.empty() ? name : name + L'.'; }
    Value call(std::wstring_view method, std::span<const Argument> arguments,
               std::wstring_view) override {
        std::wstring line = prefix() + std::wstring(method) + L'(';
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            line += (i == 0 ? L"" : L", ") + std::visit(ArgumentText(), arguments[i]);
        }
        server.journal.push_back(line + L')');
        return server.answer(name, method, arguments);
    }
    void put(std::wstring_view property, const Argument& value) override {
        server.journal.push_back(prefix() + std::wstring(property) + L" = " +
                                 std::visit(ArgumentText(), value));
    }
};

Value FakeAutomation::answer(const std::wstring& object, std::wstring_view name,
                             std::span<const Argument> arguments) {
    const auto instead = overrides.find(name);
    if (instead != overrides.end()) return instead->second(arguments);
    const bool opens = name == L"OpenDoc6" || name == L"ActivateDoc2";
    const std::wstring path = opens ? textArgument(arguments[0]) : object;
    const std::wstring document = path.substr(path.rfind(L'\\') + 1);
    const auto scripted = documents.find(document);
    const FakeDocument said = scripted == documents.end() ? FakeDocument() : scripted->second;
    if (said.fails == name) throw errors::automation(L"");
    if (opens) {
        if (name == L"OpenDoc6") {
            *std::get<std::int32_t*>(arguments[4]) = said.errorCode;
            *std::get<std::int32_t*>(arguments[5]) = said.warningCode;
        }
        if (!documentsOpen || !said.opens) return ObjectPtr();
        return std::make_shared<Object>(*this, document);
    }
    if (name == L"setsearchfolders") {
        searchFolders = textArgument(arguments[1]);
        return setSearchFoldersResult;
    }
    if (name == L"RevisionNumber") return revision;
    if (name == L"GetCurrentWorkingDirectory") return workingDirectory;
    if (name == L"GetSearchFolders") return searchFolders;
    if (name == L"GetTitle") return object;
    if (name == L"ForceRebuild3") return true;
    if (name == L"save2") return said.saved;
    if (name == L"SetCurrentWorkingDirectory") return true;
    if (name == L"closedoc" || name == L"ViewZoomtofit2") return {};
    if (name == L"fileExists") return fileExists(textArgument(arguments[0]));
    throw errors::unknownMember(std::wstring(name));
}

ObjectPtr FakeAutomation::attach(const std::wstring& progId) {
    journal.push_back(L"attach " + progId);
    if (hasNamedOnly) return nullptr;
    return std::make_shared<Object>(*this);
}

ObjectPtr FakeAutomation::attachNamed(const std::wstring& beginning, const std::wstring&) {
    journal.push_back(L"attach " + beginning + L"…");
    if (!hasNamedOnly) return nullptr;
    return std::make_shared<Object>(*this);
}

ObjectPtr FakeAutomation::create(const std::wstring& progId) {
    journal.push_back(L"create " + progId);
    return std::make_shared<Object>(*this, L"Fso");
}
