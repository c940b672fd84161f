#include "fakes/fake_automation.h"

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

struct FakeAutomation::Object : ServedObject {
    explicit Object(FakeAutomation& all, std::wstring itsName = {})
        : server(all), name(std::move(itsName)) {}

    FakeAutomation& server;
    std::wstring name;

    CallResult lookUp(std::wstring_view member, std::int32_t& number) override {
        number = static_cast<std::int32_t>(server.members_.size());
        server.members_.emplace_back(member);
        return 0;
    }
    CallResult invoke(std::int32_t number, Access access, std::span<const Argument> arguments,
                      ServersReply& reply) override {
        server.beforeEach();
        const std::wstring member = server.members_.at(static_cast<std::size_t>(number));
        const std::wstring line = (name.empty() ? name : name + L'.') + member;
        if (access == Access::Put) {
            server.journal.push_back(line + L" = " + std::visit(ArgumentText(), arguments[0]));
            return 0;
        }
        std::wstring texts;
        for (const Argument& argument : arguments) {
            texts += (texts.empty() ? L"" : L", ") + std::visit(ArgumentText(), argument);
        }
        server.journal.push_back(line + L'(' + texts + L')');
        reply = server.answer(name, member, arguments);
        return 0;
    }
};

ServersReply FakeAutomation::answer(const std::wstring& object, std::wstring_view name,
                                    std::span<const Argument> arguments) {
    const auto instead = overrides.find(name);
    if (instead != overrides.end()) return {.value = instead->second(arguments)};
    const bool opens = name == L"OpenDoc6" || name == L"ActivateDoc2";
    const std::wstring path = opens ? textArgument(arguments[0]) : object;
    const std::wstring document = path.substr(path.rfind(L'\\') + 1);
    const auto scripted = documents.find(document);
    const FakeDocument said = scripted == documents.end() ? FakeDocument() : scripted->second;
    if (said.fails == name) throw errors::automation(L"");
    if (name == L"OpenDoc6") {
        *std::get<std::int32_t*>(arguments[4]) = said.errorCode;
        *std::get<std::int32_t*>(arguments[5]) = said.warningCode;
    }
    if (opens) {
        if (!said.opens) return {.value = ObjectPtr()};
        return {.object = std::make_shared<Object>(*this, document)};
    }
    if (name == L"setsearchfolders") {
        searchFolders = textArgument(arguments[1]);
        return {.value = setSearchFoldersResult};
    }
    if (name == L"RevisionNumber") return {.value = revision};
    if (name == L"GetCurrentWorkingDirectory") return {.value = workingDirectory};
    if (name == L"GetSearchFolders") return {.value = searchFolders};
    if (name == L"GetTitle") return {.value = object};
    if (name == L"save2") return {.value = said.saved};
    if (name == L"ForceRebuild3" || name == L"SetCurrentWorkingDirectory") return {.value = true};
    if (name == L"closedoc" || name == L"ViewZoomtofit2") return {};
    if (name == L"fileExists") return {.value = fileExists(textArgument(arguments[0]))};
    throw errors::unknownMember(std::wstring(name));
}

CallResult FakeAutomation::running(const std::wstring& progId,
                                   std::shared_ptr<ServedObject>& object) {
    journal.push_back(L"attach " + progId);
    if (!runs) return call_result::failure(0x800401E3);  // MK_E_UNAVAILABLE
    object = std::make_shared<Object>(*this);
    return 0;
}

CallResult FakeAutomation::runningNamed(const std::wstring& beginning,
                                        std::shared_ptr<ServedObject>&) {
    journal.push_back(L"attach " + beginning + L"…");
    return call_result::failure(0x800401E3);
}

std::shared_ptr<ServedObject> FakeAutomation::make(const std::wstring& progId) {
    journal.push_back(L"create " + progId);
    return std::make_shared<Object>(*this, L"Fso");
}
