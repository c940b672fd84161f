#include "options.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

#include "application_object.h"
#include "common/text.h"
#include "document_object.h"
#include "text.h"

namespace {

using Reader = void (*)(Options&, const std::wstring& value);

struct OptionKind {
    const wchar_t* name;
    Reader read;
};

[[noreturn]] void refuse(std::wstring_view option, const std::wstring& value) {
    throw OptionError{L"Valeur incorrecte pour l'option " + std::wstring(option) + L" : « " +
                      value + L" »."};
}

bool isOneOf(std::span<const Member> members, std::wstring_view name) {
    return std::ranges::any_of(
        members, [&](const Member& member) { return equalIgnoringCase(member.name, name); });
}

bool isKnownMethod(std::wstring_view name) {
    return isOneOf(ApplicationObject::members(), name) || isOneOf(DocumentObject::members(), name);
}

std::wstring knownMethod(std::wstring_view option, const std::wstring& value,
                         const std::wstring& method) {
    const bool lookUp = option == L"--busy" && equalIgnoringCase(method, kNameLookUp);
    if (!lookUp && !isKnownMethod(method)) refuse(option, value);
    return method;
}

MethodRule milliseconds(std::wstring_view option, const std::wstring& value) {
    const size_t colon = value.find(L':');
    const std::int32_t number = colon == value.npos ? -1 : parseNumber(value.substr(colon + 1));
    if (number < 0) refuse(option, value);
    return {knownMethod(option, value, value.substr(0, colon)), static_cast<std::uint32_t>(number)};
}

void readTitle(Options& options, const std::wstring& value) {
    if (value == L"plain") {
        options.title = TitleStyle::Plain;
    } else if (value == L"bracket") {
        options.title = TitleStyle::Bracket;
    } else if (value == L"none") {
        options.title = TitleStyle::None;
    } else {
        refuse(L"--title", value);
    }
}

void readFail(Options& options, const std::wstring& value) {
    const size_t colon = value.find(L':');
    const std::int32_t number = colon == value.npos ? 1 : parseNumber(value.substr(colon + 1));
    if (number < 1) refuse(L"--fail", value);
    options.fail.push_back({knownMethod(L"--fail", value, value.substr(0, colon)),
                            static_cast<std::uint32_t>(number)});
}

void readJournal(Options& options, const std::wstring& value) {
    if (value.empty()) refuse(L"--journal", value);
    options.journal = value;
}

struct Flag {
    const wchar_t* name;
    bool Options::*value;
};

constexpr Flag kFlags[] = {
    {L"--hidden", &Options::hidden},
    {L"--hide-endings", &Options::endingsHidden},
    {L"--pid-only", &Options::processNameOnly},
};

bool setFlag(Options& options, const std::wstring& name) {
    for (const Flag& flag : kFlags) {
        if (name == flag.name) return options.*flag.value = true;
    }
    return false;
}

constexpr OptionKind kOptions[] = {
    {L"--journal", readJournal},
    {L"--working-directory", [](Options& o, const std::wstring& v) { o.workingDirectory = v; }},
    {L"--revision", [](Options& o, const std::wstring& v) { o.revision = v; }},
    {L"--search-folders", [](Options& o, const std::wstring& v) { o.searchFolders = v; }},
    {L"--title", readTitle},
    {L"--documents", [](Options& o, const std::wstring& v) { o.documents = v; }},
    {L"--fail", readFail},
    {L"--busy",
     [](Options& o, const std::wstring& v) { o.busy.push_back(milliseconds(L"--busy", v)); }},
    {L"--delay",
     [](Options& o, const std::wstring& v) { o.delay.push_back(milliseconds(L"--delay", v)); }},
};

const OptionKind& optionNamed(const std::wstring& name) {
    for (const OptionKind& option : kOptions) {
        if (name == option.name) return option;
    }
    throw OptionError{L"Option inconnue : « " + name + L" »."};
}

}  // namespace

Options parseOptions(const std::vector<std::wstring>& arguments) {
    Options options;
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (setFlag(options, arguments[i])) continue;
        const OptionKind& option = optionNamed(arguments[i]);
        if (++i == arguments.size()) {
            throw OptionError{L"L'option " + std::wstring(option.name) + L" attend une valeur."};
        }
        option.read(options, arguments[i]);
    }
    return options;
}
