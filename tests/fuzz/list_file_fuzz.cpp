// Any bytes as a list file: they are read, or refused by one of the two errors that the reader
// documents; and what was read is written so that it reads the same again.

#include "common/utf8.h"
#include "fuzz_input.h"
#include "worklist/list_file.h"

namespace {

/// Whether a line survives a save: its code must fill the first columns and none else.
bool survivesSave(const WorkLine& line) {
    if (line.reload) return line.code.size() == 1;
    return !line.code.empty() && line.code.size() <= 3;
}

/// Saving has put a 1 before the codes of flagged lines, which reading takes off again.
void requireSameAfterSave(WorkList& list) {
    WorkList reread;
    std::string text;
    formatListFile(list, list.lineCount(), [&](std::string_view piece) { text += piece; });
    require(parseListFile(text, reread));
    require(reread.last == list.last);
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& before = list.lines[i];
        const WorkLine& after = reread.lines[i];
        require(before.code == (after.reload ? "1" + std::string(after.code) : after.code));
        require(before.path == after.path);
        require(before.reload == after.reload);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    WorkList list;
    std::string text;
    appendUtf8(text, textOfBytes(data, size));
    bool found = false;
    const int error = raised([&] { found = parseListFile(text, list); });
    require(error == 0 || error == 5 || error == 9);
    require(found == (size > 0 && error == 0));
    if (!found) return 0;

    require(list.last >= 0 && list.last < WorkList::kCapacity);
    bool survives = true;
    for (int i = 0; i <= list.last; ++i) survives = survives && survivesSave(list.lines[i]);
    if (survives) requireSameAfterSave(list);
    return 0;
}
