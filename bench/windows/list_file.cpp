// The list file, saved and loaded as the tracking window does it.

#include "worklist/list_file.h"

#include <windows.h>

#include <memory>

#include "rows.h"
#include "sample_tree.h"
#include "win32/files/win_files.h"

namespace {

std::string listText(int count) {
    std::string text;
    for (const std::wstring& path : samplePaths(count)) appendFreshLine(text, path);
    return text;
}

void bareSave(const std::wstring& path, const std::string& bytes) {
    const std::wstring beside = path + L".tmp";
    HANDLE file = CreateFileW(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    FlushFileBuffers(file);
    CloseHandle(file);
    require(MoveFileExW(beside.c_str(), path.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH),
            "a file replaced");
}

std::string bareLoad(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              0, nullptr);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD got = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
    CloseHandle(file);
    return bytes;
}

}  // namespace

Row listFileSave(const Setting& setting) {
    Row row{.work = "list file saved",
            .floor = "one write, flush, replace",
            .ratios = {},
            .goal = "<= 1.20",
            .limit = 1.20};
    const std::wstring path = (setting.directory / "save.lst").wstring();
    for (const int size : setting.sizes) {
        const std::string bytes = listText(size);
        WorkList list;
        parseListFile(bytes, list);
        WinFiles files;
        const auto subject = [&] {
            files.replace(path, [&](const ByteSink& file) { formatListFile(list, size, file); });
        };
        const Comparison compared =
            compare(setting.rounds, {[&] { bareSave(path, bytes); }}, {subject});
        require(bareLoad(path) == bytes, "the list file's bytes");
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    return row;
}

Row listFileLoad(const Setting& setting) {
    Row row{.work = "list file loaded into the table",
            .floor = "reading its bytes",
            .ratios = {},
            .goal = "<= 2.00",
            .limit = 2};
    const std::wstring path = (setting.directory / "load.lst").wstring();
    for (const int size : setting.sizes) {
        WinFiles files;
        files.replace(path, [&](const ByteSink& file) { file(listText(size)); });
        std::unique_ptr<WorkList> list;
        const auto subject = [&] { parseListFile(files.read(path), *list); };
        const Comparison compared =
            compare(setting.rounds, {[&] { bareLoad(path); }},
                    {subject, [&] { list = std::make_unique<WorkList>(); }});
        require(list->lineCount() == size, "all lines loaded");
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    return row;
}
