// Any bytes as a record of kept marks, and any bytes as the entries of a record that is sound: what
// is read fits the list, and the list it is taken over into stays one.

#include "common/bytes.h"
#include "fuzz_input.h"
#include "worklist/list_file.h"
#include "worklist/mark_keeper.h"

constexpr char kList[] = "0  c:\\a\r\n12  c:\\b\r\n3  c:\\c\r\nx  c:\\d\r\n0  c:\\e\r\n";
constexpr int kLines = 5;

static void takeOver(std::string_view record) {
    const auto kept = readKeptMarks(record, ContentIdentity(kList), kLines);
    if (!kept) return;
    require(kept->lines.size() == kLines);
    require(!kept->opening || (*kept->opening >= 0 && *kept->opening < kLines));
    WorkList list;
    require(parseListFile(kList, list));
    const int changed = changedLines(list, *kept);
    require(changed >= 0 && changed <= kLines);
    restoreLines(list, *kept);
    require(list.lineCount() >= kLines - changed && list.lineCount() <= kLines);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    takeOver(bytes);
    const std::string header = KeptMarksWriter(ContentIdentity(kList), kLines, 0).header();
    takeOver(header + bytes);
    std::string record;
    appendFixed<std::uint32_t>(record, static_cast<std::uint32_t>(size));
    record += bytes;
    appendFixed<std::uint32_t>(record, crc32(record, crc32(header)));
    takeOver(header + record);
    return 0;
}
