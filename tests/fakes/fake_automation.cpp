#include "fakes/fake_automation.h"

struct ArgumentText {
    std::wstring operator()(const std::wstring& text) const { return L'"' + text + L'"'; }
    std::wstring operator()(bool flag) const { return flag ? L"True" : L"False"; }
    std::wstring operator()(std::int16_t number) const { return std::to_wstring(number) + L":i2"; }
    std::wstring operator()(std::int32_t number) const { return std::to_wstring(number) + L":i4"; }
    std::wstring operator()(auto* reference) const { return L'&' + (*this)(*reference); }
};

/// The text of an argument, by value or by reference.
static std::wstring textArgument(const Argument& argument) {
    if (auto* const* reference = std::get_if<std::wstring*>(&argument)) return **reference;
    return std::get<std::wstring>(argument);
}

struct FakeAutomation::Object : ServedObject {
    explicit Object(FakeAutomation& all, std::wstring itsName = {})
        : server(all), name(std::move(itsName)) {}

    FakeAutomation& server;
    std::wstring name;

    CallResult lookUp(std::wstring_view member, std::int32_t& number) override {
        number = static_cast<std::int32_t>(server.lookedUp.size());
        server.lookedUp.emplace_back(server.saidOf(name).kind, member);
        return 0;
    }
    CallResult invoke(std::int32_t number, Access access, std::span<const Argument> arguments,
                      ServersReply& reply) override {
        server.beforeEach();
        const auto& [kind, member] = server.lookedUp.at(static_cast<std::size_t>(number));
        if (kind != server.saidOf(name).kind) return call_result::kMemberNotFound;
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
        return reply.errorCode == 0 ? 0 : call_result::kException;
    }
};

FakeDocument FakeAutomation::saidOf(const std::wstring& document) const {
    const auto scripted = documents.find(document);
    return scripted == documents.end() ? FakeDocument() : scripted->second;
}

ServersReply FakeAutomation::answer(const std::wstring& object, std::wstring_view name,
                                    std::span<const Argument> arguments) {
    const auto instead = overrides.find(name);
    if (instead != overrides.end()) return {.value = instead->second(arguments)};
    const bool opens = name == L"OpenDoc6" || name == L"ActivateDoc2";
    const std::wstring path = opens ? textArgument(arguments[0]) : object;
    const std::wstring document = path.substr(path.rfind(L'\\') + 1);
    const FakeDocument said = saidOf(document);
    if (said.fails == name) {
        return {.errorCode = call_result::failure(0x80004005), .description = said.fails + L" !"};
    }
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
    beforeEach();
    journal.push_back(L"attach " + progId);
    if (attaching == 0) object = std::make_shared<Object>(*this);
    return attaching;
}

CallResult FakeAutomation::runningNamed(const std::wstring& beginning,
                                        std::shared_ptr<ServedObject>&) {
    journal.push_back(L"attach " + beginning + L"…");
    return attaching;
}

std::shared_ptr<ServedObject> FakeAutomation::make(const std::wstring& progId) {
    journal.push_back(L"create " + progId);
    if (progId != L"Scripting.FileSystemObject") return nullptr;
    return std::make_shared<Object>(*this, L"Fso");
}
