#include "selection/imported_file.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <thread>

#include "common/encoding.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "pickers/paths.h"
#include "ports/files.h"
#include "selection/document_search.h"

namespace {

bool isFieldEnd(char c) { return c == ';' || c == '\t'; }

/// The length of the quoted field at the front, with its quotes; nothing when the closing quote
/// doesn't end the field.
std::optional<std::size_t> quotedLength(std::string_view text) {
    std::size_t end = 1;
    while ((end = text.find('"', end)) != std::string_view::npos) {
        const bool doubled = end + 1 < text.size() && text[end + 1] == '"';
        if (!doubled) break;
        end += 2;
    }
    if (end == std::string_view::npos) return std::nullopt;
    return ++end == text.size() || isFieldEnd(text[end]) ? std::optional(end) : std::nullopt;
}

std::string withoutDoubledQuotes(std::string_view inner) {
    std::string text;
    for (std::size_t i = 0; i < inner.size(); ++i) {
        text += inner[i];
        if (inner[i] == '"') ++i;
    }
    return text;
}

/// Our reports put an apostrophe before a text that a spreadsheet would take for a formula.
std::string_view withoutApostrophe(std::string_view field) {
    constexpr std::string_view kFormulas = "=+-@";
    const bool guarded =
        field.size() > 1 && field[0] == '\'' && kFormulas.find(field[1]) != std::string_view::npos;
    return field.substr(guarded ? 1 : 0);
}

/// The fields of a line, one after the other. Each is valid until the next one is taken.
class Fields {
 public:
    explicit Fields(std::string_view line) : rest_(line) {}

    std::optional<std::string_view> next() {
        if (atEnd_) return std::nullopt;
        const auto quoted = rest_.starts_with('"') ? quotedLength(rest_) : std::nullopt;
        const auto plain = std::ranges::find_if(rest_, isFieldEnd) - rest_.begin();
        const auto field = rest_.substr(0, quoted.value_or(static_cast<std::size_t>(plain)));
        atEnd_ = field.size() == rest_.size();
        rest_.remove_prefix(field.size() + (atEnd_ ? 0 : 1));
        return quoted ? unquoted(field.substr(1, field.size() - 2)) : field;
    }

 private:
    std::string_view unquoted(std::string_view inner) {
        if (inner.find('"') == std::string_view::npos) return inner;
        return unquoted_ = withoutDoubledQuotes(inner);
    }

    std::string_view rest_;
    std::string unquoted_;
    bool atEnd_ = false;
};

/// The first field that names a document, empty for none.
std::string_view documentIn(Fields& fields) {
    while (const auto field = fields.next()) {
        const std::string_view name = withoutApostrophe(trimmed(*field));
        if (isDocumentName(name)) return name;
    }
    return {};
}

/// Even when a spreadsheet has removed columns, added others, or garbled what isn't ASCII.
bool isReportHead(std::string_view line) {
    Fields fields(line);
    bool hasState = false;
    while (const auto field = fields.next()) {
        if (hasState && field == "Document") return true;
        hasState |= field == "Etat";
    }
    return false;
}

bool isBlankRow(std::string_view line) {
    return line.find_first_not_of(" ;\t\"") == std::string_view::npos;
}

/// The line from its fourth character on; characters may have several bytes.
std::string_view behindCode(std::string_view line) {
    const auto continues = [&](std::size_t i) {
        return i < line.size() && (line[i] & 0xC0) == 0x80;
    };
    std::size_t end = 0;
    for (int characters = 0; characters < 3 && end < line.size(); ++characters) {
        do ++end;
        while (continues(end));
    }
    return trimmed(line.substr(end));
}

}  // namespace

bool isDocumentName(std::string_view utf8) {
    constexpr std::string_view kEnds[] = {".sldprt", ".sldasm", ".slddrw"};
    return std::ranges::any_of(kEnds, [&](std::string_view end) {
        if (utf8.size() < end.size()) return false;
        const std::string_view last = utf8.substr(utf8.size() - end.size());
        return std::ranges::equal(last, end, [](char c, char lower) {
            return c == lower || (c >= 'A' && c <= 'Z' && c - 'A' + 'a' == lower);
        });
    });
}

void readTable(std::string_view utf8, const std::function<void(const DocumentLine&)>& visit) {
    for (int number = 1; !utf8.empty(); ++number) {
        const std::string_view line = takeLine(utf8);
        if (isBlankRow(line) || (number == 1 && isReportHead(line))) continue;
        Fields fields(line);
        const std::string_view name = documentIn(fields);
        visit({number, name.empty() ? line : name, !name.empty()});
    }
}

void readListLines(std::string_view utf8, const std::function<void(const DocumentLine&)>& visit) {
    for (int number = 1; !utf8.empty(); ++number) {
        const std::string_view line = takeLine(utf8);
        if (trimmed(line).empty()) continue;
        const std::string_view name = behindCode(line);
        visit({number, name.empty() ? line : name, !name.empty()});
    }
}

namespace {

/// Lists are far smaller.
constexpr std::uint64_t kLargestFile = 16U << 20;

bool endsWith(const std::wstring& path, const wchar_t* ending) {
    return upperCase(path).ends_with(ending);
}

bool isListFile(const std::wstring& path) { return endsWith(path, L".LST"); }

void take(FileLines& lines, const DocumentLine& line, const std::wstring& directory) {
    if (line.namesDocument || lines.nameless < FileLines::kTold) {
        auto& kept = lines.lines.emplace_back(
            FileLines::Line{lines.count, wideText(line.text), line.namesDocument, std::nullopt});
        if (line.namesDocument) kept.path = resolvedPath(directory, kept.text);
    }
    if (!line.namesDocument) ++lines.nameless;
    ++lines.count;
    if (lines.lines.size() > FileLines::kMost) throw tooManyDocuments();
}

FileLines readNames(Files& files, const std::wstring& file) {
    if (files.sizeOf(file) > kLargestFile) {
        throw ImportProblem{L"Ce fichier est trop grand : 16 Mo au plus.\r\n" + file};
    }
    const std::string utf8 = files.read(file);
    if (utf8.find('\0') != std::string::npos) {
        throw ImportProblem{
            L"Ce fichier n'est pas un texte. D'un tableur, enregistrez la feuille au format "
            L"CSV.\r\n" +
            file};
    }
    FileLines lines;
    const auto readLines = isListFile(file) ? readListLines : readTable;
    readLines(utf8, [&, directory = parentPath(file)](const DocumentLine& line) {
        take(lines, line, directory);
    });
    return lines;
}

}  // namespace

FileLines linesOf(Files& files, const std::wstring& file) {
    // A scanner may hold it, or the program that has just written it.
    constexpr std::chrono::milliseconds kMoment(300);
    for (int attempts = 3;; --attempts) {
        try {
            return readNames(files, file);
        } catch (const ImportProblem& problem) {
            return {.problem = problem};
        } catch (const RuntimeError& error) {
            const bool mayPass = error.number == 70 || error.number == 75;
            if (!mayPass || attempts == 1) throw;
            std::this_thread::sleep_for(kMoment);
        }
    }
}

bool mayNameDocuments(const std::wstring& path) {
    return isListFile(path) || endsWith(path, L".CSV") || endsWith(path, L".TXT");
}

ImportProblem tooManyDocuments() {
    return {L"Il y a plus de " + decimal(FoundDocuments::kCapacity) +
            L" documents : une liste n'en contient pas plus."};
}
