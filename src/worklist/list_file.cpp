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
                    .path = trimmed(line.substr(kCodeWidth)),
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

void ListFileReader::add(std::wstring_view piece) {
    std::wstring_view rest = list_.texts.emplace_back(piece);
    while (!rest.empty()) list_.EtatFich[count_++] = parseLine(takeLine(rest));
}

bool ListFileReader::finish() {
    if (count_ == 0) return false;
    list_.DerFich = static_cast<std::int16_t>(count_ - 1);
    return true;
}

void formatListFile(WorkList& list, long lineCount, const TextSink& sink) {
    constexpr std::size_t kPiece = 1 << 15;
    std::wstring piece;
    piece.reserve(kPiece + 1000);
    for (long i = 0; i < lineCount; ++i) {
        WorkLine& line = list.EtatFich[i];
        if (line.reload == L"1") line.code.insert(0, 1, L'1');
        appendLine(piece, line.code, line.path);
        if (piece.size() < kPiece) continue;
        sink(piece);
        piece.clear();
    }
    sink(piece);
}

void appendFreshLine(std::wstring& text, std::wstring_view path) {
    appendLine(text, state::kToDo, path);
}
