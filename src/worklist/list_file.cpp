#include "worklist/list_file.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "common/encoding.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"

namespace {

constexpr int kCodeWidth = 3;
constexpr int kReloadOffset = 10;
constexpr std::string_view kBetween = "  ";
constexpr std::string_view kLineEnd = "\r\n";

/// How many bytes the characters of the code have.
std::size_t codeEnd(std::string_view line) {
    std::size_t end = 0;
    for (int characters = 0; characters < kCodeWidth; ++characters) {
        if (end == line.size()) throw errors::invalidArgument();
        const auto continuesCharacter = [&] { return (line[end] & 0xC0) == 0x80; };
        do ++end;
        while (end < line.size() && continuesCharacter());
    }
    return end;
}

int leadingNumber(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

WorkLine parseLine(std::string_view text, WorkList& list) {
    const std::size_t end = codeEnd(text);
    WorkLine line;
    std::string_view code = trimmed(text.substr(0, end));
    const int number = leadingNumber(code);
    line.reload = number >= kReloadOffset;
    if (line.reload) code = list.keep(std::to_string(number - kReloadOffset));
    line.code = StateCode(code);
    line.path = trimmed(text.substr(end));
    return line;
}

}  // namespace

std::wstring besideList(std::wstring_view listFile, std::wstring_view ending) {
    constexpr std::wstring_view kExtension = L".lst";
    const std::size_t stem = listFile.size() - std::min(kExtension.size(), listFile.size());
    if (equalIgnoringCase(listFile.substr(stem), kExtension)) listFile = listFile.substr(0, stem);
    std::wstring path(listFile);
    return path += ending;
}

bool parseListFile(std::string text, WorkList& list, const std::wstring& file) {
    if (text.empty()) return false;
    std::string_view rest = list.keep(std::move(text));
    int count = 0;
    try {
        while (!rest.empty()) {
            WorkLine line = parseLine(takeLine(rest), list);
            line.fileLine = count;
            list.lines.edit(count++) = line;
        }
    } catch (RuntimeError& error) {
        error.addPlace(count + 1, file);
        throw;
    }
    list.last = count - 1;
    return true;
}

void formatListFile(WorkList& list, std::int32_t lineCount, const ByteSink& file) {
    // A larger text gets fresh memory from the system each time, which takes longer than to write
    // it in pieces.
    constexpr std::size_t kPiece = 1 << 17;
    std::string piece;
    piece.reserve(2 * kPiece);
    for (std::int32_t i = 0; i < lineCount; ++i) {
        const WorkLine& line = list.lines[i];
        if (line.reload) {
            const std::string code = "1" + std::string(line.code.text());
            list.lines.edit(i)->code = StateCode(list.keep(code));
        }
        ((piece += line.code.text()) += kBetween) += line.path;
        piece += kLineEnd;
        if (piece.size() < kPiece) continue;
        file(piece);
        piece.clear();
    }
    file(piece);
}

void appendFreshLine(std::string& text, std::wstring_view path) {
    (text += StateCode(LineState::ToDo).text()) += kBetween;
    appendUtf8(text, path);
    text += kLineEnd;
}
