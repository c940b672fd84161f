// What one mark costs on disk: the pass's own record against one bare append and flush.

#include <windows.h>

#include "rows.h"
#include "sample_tree.h"
#include "win32/files/win_written_files.h"
#include "win32/process/win_machine.h"
#include "worklist/list_file.h"
#include "worklist/mark_keeper.h"
#include "worklist/pass.h"

namespace {

std::string freshList(int count) {
    std::string text;
    for (const std::wstring& path : samplePaths(count)) appendFreshLine(text, path);
    return text;
}

/// A file that is appended to and flushed by Windows calls alone.
class BareFile {
 public:
    explicit BareFile(const std::wstring& path)
        : file_(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0,
                            nullptr)) {}
    ~BareFile() { CloseHandle(file_); }
    BareFile(const BareFile&) = delete;
    BareFile& operator=(const BareFile&) = delete;

    void append() const {
        constexpr char kRecord[24] = {};
        DWORD written = 0;
        WriteFile(file_, kRecord, sizeof kRecord, &written, nullptr);
        require(FlushFileBuffers(file_), "bytes on the disk");
    }

 private:
    HANDLE file_;
};

Comparison compareMark(const Setting& setting, int count) {
    const std::string text = freshList(count);
    const WinClock clock;
    WinRecordFiles files;
    Pass pass(clock);
    pass.read(text);
    pass.start();
    MarkKeeper keeper(files, (setting.directory / "mark.lst").wstring(), clock);
    keeper.begin(ContentIdentity(text), pass.list());
    const BareFile bare((setting.directory / "bare.bin").wstring());
    const auto mark = [&] {
        if (!pass.advance(LineState::Done)) pass.reset([](int) { return true; });
        keeper.keep(pass.list());
    };
    mark();
    const Comparison result = compare(setting.rounds, {[&] { bare.append(); }}, {mark});
    require(keeper.keeps() && !keeper.takeFailure(), "marks kept");
    keeper.forget();
    return result;
}

}  // namespace

Row markKept(const Setting& setting) {
    Row row{.work = "one mark kept",
            .floor = "one append and flush",
            .ratios = {},
            .goal = "<= 1.20",
            .limit = 1.20};
    for (const int size : setting.sizes) {
        const Comparison compared = compareMark(setting, size);
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    return row;
}
