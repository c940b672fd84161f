// Any bytes as a list file: they are read, or refused by one of the two errors that the reader
// documents; and what was read is written so that it reads the same again.

#include "fuzz_input.h"
#include "worklist/list_file.h"

namespace {

bool readPieces(std::wstring_view first, std::wstring_view second, WorkList& list) {
    ListFileReader reader(list);
    list.texts.clear();
    reader.add(first);
    reader.add(second);
    return reader.finish();
}

/// Whether a line survives a save: its code must fill the first columns and none else.
bool survivesSave(const WorkLine& line) {
    if (line.reload == L"1") return line.code.size() == 1;
    return !line.code.empty() && line.code.size() <= 3;
}

/// Saving has put a 1 before the codes of flagged lines, which reading takes off again.
void requireSameAfterSave(WorkList& list) {
    static WorkList reread;
    std::wstring text;
    formatListFile(list, list.lineCount(), [&](std::wstring_view piece) { text += piece; });
    require(readPieces(text, L"", reread));
    require(reread.DerFich == list.DerFich);
    for (int i = 0; i <= list.DerFich; ++i) {
        const WorkLine& before = list.EtatFich[i];
        const WorkLine& after = reread.EtatFich[i];
        require(before.code == (after.reload == L"1" ? L"1" + after.code : after.code));
        require(before.path == after.path);
        require(before.reload == after.reload);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static WorkList list;  // a table is big, and reading leaves no trace of the one before
    bool read = false;
    // In two pieces, the first of which ends with a line.
    const std::wstring text = textOfBytes(data, size);
    const auto second = text.begin() + static_cast<std::ptrdiff_t>(text.find(L'\n') + 1);
    const int error = errorOf([&] {
        read = readPieces({text.begin(), second}, {second, text.end()}, list);
    });
    require(error == 0 || error == 5 || error == 9);
    require(read == (size > 0 && error == 0));
    if (!read) return 0;

    require(list.DerFich >= 0 && list.DerFich < WorkList::kCapacity);
    bool survives = true;
    for (int i = 0; i <= list.DerFich; ++i) survives = survives && survivesSave(list.EtatFich[i]);
    if (survives) requireSameAfterSave(list);
    return 0;
}
