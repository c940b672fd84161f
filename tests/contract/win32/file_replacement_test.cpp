// Every call that a replacement makes fails in turn: the old file stays, nothing beside it.

#include "platform/win32/files/file_replacement.h"

#include "contract/machine.h"

namespace {

/// Lets its Nth call, and so many in all, fail with a given Windows error.
struct FailingCalls : FileCalls {
    FailingCalls(int which, DWORD itsError, int inAll = 1)
        : failing(which), error(itsError), times(inAll) {}

    const int failing;
    const DWORD error;
    const int times;
    int calls = 0;

    HANDLE create(const std::wstring& path) override {
        return fails() ? INVALID_HANDLE_VALUE : FileCalls::create(path);
    }
    bool write(HANDLE file, const char* bytes, DWORD count, DWORD& written) override {
        return !fails() && FileCalls::write(file, bytes, count, written);
    }
    bool flush(HANDLE file) override { return !fails() && FileCalls::flush(file); }
    bool move(const std::wstring& from, const std::wstring& to) override {
        return !fails() && FileCalls::move(from, to);
    }

    bool fails() {
        if (++calls < failing || calls >= failing + times) return false;
        SetLastError(error);
        return true;
    }
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
        FailingCalls calls(failing, failing == 1 ? ERROR_ACCESS_DENIED : ERROR_DISK_FULL);
        const int error = raised([&] { replaceFile(file, kNew, calls); });
        if (calls.calls < failing) break;
        EXPECT_EQ(error, 75) << "call " << failing;
        EXPECT_EQ(files.readText(file), L"ancien") << "call " << failing;
        EXPECT_EQ(namesIn(directory).size(), 1u) << "call " << failing;
    }
    EXPECT_EQ(failing, 5) << "create, write, flush and move";
    EXPECT_EQ(files.readText(file), L"nouveau");
}

TEST_F(FileReplacement, TriesAgainWhileAnotherProgramReadsTheFile) {
    files.replaceText(file, L"ancien");
    FailingCalls calls(4, ERROR_SHARING_VIOLATION, 2);
    replaceFile(file, kNew, calls);
    EXPECT_EQ(files.readText(file), L"nouveau");
    EXPECT_EQ(calls.calls, 6);
}
