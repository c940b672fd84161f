#include "selection/imported_file.h"

#include <chrono>
#include <cstdint>
#include <thread>

#include "common/encoding.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "pickers/paths.h"
#include "ports/files.h"
#include "selection/document_lines.h"
#include "selection/document_search.h"

namespace {

/// Lists are far smaller.
constexpr std::uint64_t kLargestFile = 16U << 20;

bool endsWith(const std::wstring& path, const wchar_t* ending) {
    return upperCase(path).ends_with(ending);
}

bool isListFile(const std::wstring& path) { return endsWith(path, L".LST"); }

void take(FileLines& lines, const DocumentLine& line, const std::wstring& directory) {
    if (line.namesDocument || lines.nameless < FileLines::kTold) {
        auto& kept = lines.lines.emplace_back(lines.count, wideText(line.text), std::nullopt);
        if (line.namesDocument) kept.path = resolvedPath(directory, kept.text);
    }
    if (!line.namesDocument) ++lines.nameless;
    ++lines.count;
    if (lines.lines.size() > FileLines::kMost) throw tooManyDocuments();
}

FileLines readNames(Files& files, const std::wstring& file) {
    if (files.sizeOf(file) > kLargestFile) {
        throw ImportProblem{L"Il est trop grand : 16 Mo au plus."};
    }
    const std::string utf8 = files.read(file);
    if (utf8.find('\0') != std::string::npos) {
        throw ImportProblem{
            L"Ce n'est pas un texte. D'un tableur, enregistrez la feuille au format CSV."};
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
    // A scanner holds it, or the program that has just written it.
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
