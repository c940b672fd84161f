#include "document_script.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "common/runtime_error.h"
#include "common/text.h"
#include "document_file.h"
#include "text.h"
#include "win32/files/win_files.h"

namespace {

constexpr std::wstring_view kBetweenActs = L";, \t";

/// Takes the part before the first of these separators off the front of a text.
std::wstring_view takePart(std::wstring_view& text, std::wstring_view separators) {
    const std::wstring_view part = text.substr(0, text.find_first_of(separators));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return trimmed(part);
}

ScriptedCode ScriptedDocument::*codeNamed(std::wstring_view name) {
    if (equalIgnoringCase(name, L"refuse")) return &ScriptedDocument::refuse;
    if (equalIgnoringCase(name, L"error")) return &ScriptedDocument::error;
    if (equalIgnoringCase(name, L"warning")) return &ScriptedDocument::warning;
    if (equalIgnoringCase(name, L"save")) return &ScriptedDocument::save;
    return nullptr;
}

/// Reads one thing that a document does; false when it isn't understood.
bool readAct(ScriptedDocument& document, std::wstring_view act) {
    if (equalIgnoringCase(act, L"open")) return document.usersOwn = true;
    const auto code = codeNamed(takePart(act, L"="));
    const bool counted = act.find(L':') != act.npos;
    const std::int32_t number = parseNumber(takePart(act, L":"));
    const std::int32_t times = counted ? parseNumber(trimmed(act)) : 1;
    if (!code || number < 0 || times < 1) return false;
    document.*code = {number, counted ? std::optional(times) : std::nullopt};
    return true;
}

std::wstring textOf(const std::wstring& file) {
    try {
        return WinFiles().readText(file);
    } catch (const RuntimeError&) {
        throw ScriptError{L"Le fichier « " + file + L" » ne peut pas être lu."};
    }
}

[[noreturn]] void refuseLine(const std::wstring& file, size_t line, std::wstring_view what) {
    throw ScriptError{file + L", ligne " + std::to_wstring(line) + L" : « " + std::wstring(what) +
                      L" » n'est pas compris (refuse=N, error=N, warning=N, save=N ou open)."};
}

ScriptedDocument readLine(const std::wstring& file, size_t number, std::wstring_view line) {
    std::wstring_view rest = line;
    ScriptedDocument document;
    document.name = takePart(rest, L";");
    if (document.name.empty()) refuseLine(file, number, line);
    while (!rest.empty()) {
        const std::wstring_view act = takePart(rest, kBetweenActs);
        if (!act.empty() && !readAct(document, act)) refuseLine(file, number, act);
    }
    return document;
}

}  // namespace

std::optional<std::int32_t> ScriptedCode::next() {
    if (left_ && (*left_)-- <= 0) return std::nullopt;
    return code_;
}

DocumentScript readDocumentScript(const std::wstring& file, const std::wstring& directory) {
    const std::wstring text = textOf(file);
    DocumentScript script;
    std::wstring_view rest = text;
    for (size_t number = 1; !rest.empty(); ++number) {
        const std::wstring_view line = trimmed(takeLine(rest));
        if (line.empty()) continue;
        script.push_back(readLine(file, number, line));
        script.back().path = absolutePath(script.back().name, directory);
    }
    return script;
}

ScriptedDocument* scriptedDocument(DocumentScript& script, const std::wstring& path) {
    const auto found = std::ranges::find_if(script, [&](const ScriptedDocument& document) {
        return equalIgnoringCase(document.path, path) ||
               equalIgnoringCase(document.name, fileNameOf(path));
    });
    return found == script.end() ? nullptr : &*found;
}
