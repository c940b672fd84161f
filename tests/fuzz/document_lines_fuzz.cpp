// Any bytes as a file that is imported: each line is handed on once at most, those that name a
// document with a name of one, and the path that it stands for tells its server.

#include "common/encoding.h"
#include "fuzz_input.h"
#include "pickers/paths.h"
#include "selection/imported_file.h"

static void requireFull(const std::wstring& path) {
    const bool onServer = !serverOf(path).empty();
    require(onServer == path.starts_with(L"\\\\"));
    require(onServer || path.substr(1, 2) == L":\\");
    require(path.find(L"\\..\\") == std::wstring::npos);
    require(resolvedPath(L"c:\\x", path) == path);
}

static void readAs(bool isList, const std::string& utf8) {
    int last = 0;
    (isList ? readListLines : readTable)(utf8, [&](const DocumentLine& line) {
        require(line.number > last && !line.text.empty());
        last = line.number;
        require(isList || !line.namesDocument || isDocumentName(line.text));
        const auto path = resolvedPath(L"\\\\srv\\part\\l", wideText(line.text));
        if (path) requireFull(*path);
    });
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string utf8 = textInUtf8(std::string(data, data + size));
    readAs(false, utf8);
    readAs(true, utf8);
    return 0;
}
