// Any bytes as a list file: they are read, or refused by one of the two errors that the reader
// documents; and what was read is written so that it reads the same again.

#include "common/encoding.h"
#include "fuzz_input.h"
#include "worklist/list_file.h"

/// Whether a line survives a save: its code must fill the first columns and none else.
static bool survivesSave(const WorkLine& line) {
    const std::size_t length = line.code.text().size();
    return line.reload ? length == 1 : length >= 1 && length <= 3;
}

/// Saving has put a 1 before the codes of flagged lines, which reading takes off again.
static void requireSameAfterSave(WorkList& list) {
    std::string saved;
    formatListFile(list, list.lineCount(), [&](std::string_view piece) { saved += piece; });
    WorkList reread;
    require(parseListFile(saved, reread));
    require(reread.last == list.last);
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& before = list.lines[i];
        const WorkLine& after = reread.lines[i];
        const std::string code(after.code.text());
        require(before.code.text() == (after.reload ? "1" + code : code));
        require(before.path == after.path && before.reload == after.reload);
    }
}

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
