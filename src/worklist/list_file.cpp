#include "worklist/list_file.h"

#include <charconv>
#include <functional>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "common/utf8.h"
#include "worklist/list_writer.h"

namespace {

constexpr int kCodeWidth = 3;
constexpr int kReloadOffset = 10;
constexpr std::string_view kBetween = "  ";
constexpr std::string_view kLineEnd = "\r\n";

/// How many bytes the characters of the code take.
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
    line.code = trimmed(text.substr(0, end));
    line.path = trimmed(text.substr(end));
    const int number = leadingNumber(line.code);
    line.reload = number >= kReloadOffset;
    if (line.reload) line.code = list.keep(std::to_string(number - kReloadOffset));
    return line;
}

/// The path with what is written around it, if it stands so in a text; else nothing.
std::string_view asItStands(std::string_view path, std::string_view text) {
    if (text.empty()) return {};
    const std::less<> isBefore;
    if (isBefore(path.data(), text.data() + kBetween.size())) return {};
    if (isBefore(text.data() + text.size(), path.data() + path.size() + kLineEnd.size())) return {};
    const std::string_view rest(path.data() - kBetween.size(),
                                kBetween.size() + path.size() + kLineEnd.size());
    return rest.starts_with(kBetween) && rest.ends_with(kLineEnd) ? rest : std::string_view();
}

/// Writes what follows the code of a line. Most lines are as they were read.
void addRest(ListWriter& writer, std::string_view path, std::string_view fileText) {
    const std::string_view rest = asItStands(path, fileText);
    if (!rest.empty()) return writer.add(rest);
    writer.add(kBetween);
    writer.add(path);
    writer.add(kLineEnd);
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
            WorkLine& line = list.lines[count];
            line = parseLine(takeLine(rest), list);
            line.fileLine = count++;
        }
    } catch (RuntimeError& error) {
        error.addPlace(count + 1, file);
        throw;
    }
    list.last = count - 1;
    return true;
}

void formatListFile(WorkList& list, std::int32_t lineCount, const ByteSink& file) {
    ListWriter writer(file);
    for (std::int32_t i = 0; i < lineCount; ++i) {
        WorkLine& line = list.lines[i];
        if (line.reload) line.code = list.keep(std::string("1").append(line.code));
        writer.add(line.code);
        addRest(writer, line.path, list.firstText());
    }
    writer.finish();
}

void appendFreshLine(std::string& text, std::wstring_view path) {
    (text += state::kToDo) += kBetween;
    appendUtf8(text, path);
    text += kLineEnd;
}
