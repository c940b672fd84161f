#include "worklist/list_file.h"

#include "common/numbers.h"
#include "common/text.h"
#include "platform/runtime_error.h"

namespace {

constexpr std::size_t kCodeWidth = 3;
constexpr long kReloadOffset = 10;

WorkLine parseLine(std::wstring_view line) {
    if (line.size() < kCodeWidth) throw errors::invalidArgument();
    WorkLine result{.code = std::wstring(trimmed(line.substr(0, kCodeWidth))),
                    .path = std::wstring(trimmed(line.substr(kCodeWidth))),
                    .reload = {}};
    if (const long value = numericValue(result.code); value >= kReloadOffset) {
        result.code = decimal(value - kReloadOffset);
        result.reload = L"1";
    }
    return result;
}

void appendLine(std::wstring& text, std::wstring_view code, std::wstring_view path) {
    text += code;
    text += L"  ";
    text += path;
    text += L"\r\n";
}

}  // namespace

bool parseListFile(std::wstring_view text, WorkList& list) {
    if (text.empty()) return false;
    long row = 0;
    while (!text.empty()) list.EtatFich[row++] = parseLine(takeLine(text));
    list.DerFich = static_cast<std::int16_t>(row - 1);
    return true;
}

std::wstring formatListFile(WorkList& list, long lineCount) {
    constexpr std::size_t kBesidePath = 8;
    std::size_t length = 0;
    for (long i = 0; i < lineCount; ++i) length += list.EtatFich[i].path.size() + kBesidePath;
    std::wstring text;
    text.reserve(length);
    for (long i = 0; i < lineCount; ++i) {
        WorkLine& line = list.EtatFich[i];
        if (line.reload == L"1") line.code.insert(0, 1, L'1');
        appendLine(text, line.code, line.path);
    }
    return text;
}

void appendFreshLine(std::wstring& text, std::wstring_view path) {
    appendLine(text, state::kToDo, path);
}
