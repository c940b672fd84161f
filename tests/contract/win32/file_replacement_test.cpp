// Every step that a replacement makes fails in turn: the old file stays, nothing beside it.

#include "contract/machine.h"
#include "win32/files/win_written_files.h"

namespace {

/// Lets its Nth step, and so many in all, fail with a given Windows error.
struct FailingSteps : WinReplacementSteps {
    FailingSteps(int which, DWORD itsError, int inAll = 1)
        : failing(which), error(itsError), times(inAll) {}

    const int failing;
    const DWORD error;
    const int times;
    int calls = 0;

    std::uint32_t create(const std::wstring& path) override {
        return fails() ? error : WinReplacementSteps::create(path);
    }
    std::uint32_t write(std::string_view bytes) override {
        return fails() ? error : WinReplacementSteps::write(bytes);
    }
    std::uint32_t flush() override { return fails() ? error : WinReplacementSteps::flush(); }
    std::uint32_t move(const std::wstring& from, const std::wstring& to) override {
        return fails() ? error : WinReplacementSteps::move(from, to);
    }

    bool fails() { return ++calls >= failing && calls < failing + times; }
};

const WriteContent kNew = [](const ByteSink& file) { file("nouveau"); };

struct FileReplacement : ContractTest {
    std::wstring file = path(L"tarnwick.lst");
};

}  // namespace

// A full disk, and a directory where nothing may be written.
TEST_F(FileReplacement, LeavesTheOldFileWhicheverCallFails) {
    files.replaceText(file, L"ancien");
    int failing = 1;
    for (;; ++failing) {
        FailingSteps steps(failing, failing == 1 ? ERROR_ACCESS_DENIED : ERROR_DISK_FULL);
        const int error = raised([&] { replaceFile(file, kNew, steps); });
        if (steps.calls < failing) break;
        EXPECT_EQ(error, 75) << "call " << failing;
        EXPECT_EQ(files.readText(file), L"ancien") << "call " << failing;
        EXPECT_EQ(namesIn(directory).size(), 1u) << "call " << failing;
    }
    EXPECT_EQ(failing, 5) << "create, write, flush and move";
    EXPECT_EQ(files.readText(file), L"nouveau");
}

TEST_F(FileReplacement, TriesAgainWhileAnotherProgramReadsTheFile) {
    files.replaceText(file, L"ancien");
    FailingSteps steps(4, ERROR_SHARING_VIOLATION, 2);
    replaceFile(file, kNew, steps);
    EXPECT_EQ(files.readText(file), L"nouveau");
    EXPECT_EQ(steps.calls, 6);
}
