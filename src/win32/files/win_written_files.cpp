#include "win32/files/win_written_files.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <new>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "rules/windows_files.h"
#include "win32/files/win_files.h"
#include "win32/process/handles.h"

namespace {

/// For reading as well, although nothing is read: otherwise a file server may refuse a write now
/// and then (the CreateFile function).
constexpr DWORD kReadAndWrite = GENERIC_READ | GENERIC_WRITE;

std::uint32_t errorUnless(bool succeeded) { return succeeded ? 0 : GetLastError(); }

}  // namespace

bool WinReplacementSteps::isProtected(const std::wstring& path) {
    constexpr DWORD kEither = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & kEither) != 0;
}

std::wstring WinReplacementSteps::nameBeside(const std::wstring& path) {
    return path + L"." + decimal(GetCurrentProcessId()) + L"-" +
           decimal(static_cast<std::int64_t>(GetTickCount64() & 0x7FFFFFFF)) + L".tmp";
}

std::uint32_t WinReplacementSteps::create(const std::wstring& path) {
    file_.reset(CreateFileW(path.c_str(), kReadAndWrite, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    return errorUnless(isValid(file_));
}

std::uint32_t WinReplacementSteps::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
        DWORD written = 0;
        if (!WriteFile(file_.get(), bytes.data(), wanted, &written, nullptr)) return GetLastError();
        bytes.remove_prefix(written);
    }
    return 0;
}

std::uint32_t WinReplacementSteps::flush() { return errorUnless(FlushFileBuffers(file_.get())); }

std::uint32_t WinReplacementSteps::move(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return errorUnless(MoveFileExW(from.c_str(), to.c_str(), kFlags));
}

std::uint32_t WinReplacementSteps::remove(const std::wstring& path) {
    return errorUnless(DeleteFileW(path.c_str()));
}

std::uint32_t WinReplacementSteps::openAlone(const std::wstring& path) {
    return errorUnless(isValid(
        UniqueHandle(CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr))));
}

namespace {

/// Far more than any record needs: a foreign file must not use up the memory.
constexpr std::int64_t kMostRecordBytes = 64 << 20;

/// Stays open while records are added, so that each costs no more than its own bytes. Meanwhile
/// others may read the file, but neither write, move nor delete it: later marks would be lost.
class WinRecordFile : public RecordFile {
 public:
    explicit WinRecordFile(const std::wstring& path) : path_(path), longPath_(longPath(path)) {}

    std::optional<std::string> read() override {
        try {
            return WinFiles().readAtMost(path_, kMostRecordBytes);
        } catch (const RuntimeError&) {
            return std::nullopt;
        } catch (const std::bad_alloc&) {
            return std::nullopt;
        }
    }

    void replace(std::string_view bytes) override {
        file_.reset(INVALID_HANDLE_VALUE);
        makeWritable(path_);
        WinFiles().replace(path_, [&](const ByteSink& file) { file(bytes); });
        const DWORD error = openNow(kReadAndWrite, FILE_SHARE_READ);
        if (error != 0) throw fileError(error, path_);
        require(SetFilePointerEx(file_.get(), {}, nullptr, FILE_END));
    }

    void append(std::string_view bytes, Flush flush) override {
        // On a server, programs of other systems can delete it all the same.
        require(GetFileAttributesW(longPath_.c_str()) != INVALID_FILE_ATTRIBUTES);
        DWORD written = 0;
        const auto size = static_cast<DWORD>(bytes.size());
        require(WriteFile(file_.get(), bytes.data(), size, &written, nullptr) && written == size);
        if (flush == Flush::Now) require(FlushFileBuffers(file_.get()));
    }

    bool clear() override {
        if (isValid(file_) && empty(file_.get())) return true;
        // When the network was away, what was open stays out of reach.
        file_.reset(INVALID_HANDLE_VALUE);
        makeWritable(path_);
        if (DeleteFileW(longPath_.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND) return true;
        // Another program holds it for the moment. An empty record offers nothing, either.
        return isValid(UniqueHandle(CreateFileW(longPath_.c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                                nullptr, TRUNCATE_EXISTING, 0, nullptr)));
    }

    void remove() override {
        if (isValid(file_)) empty(file_.get());
        file_.reset(INVALID_HANDLE_VALUE);
        clear();
    }

 private:
    static bool empty(HANDLE file) {
        return SetFilePointerEx(file, {}, nullptr, FILE_BEGIN) && SetEndOfFile(file);
    }

    /// Returns Windows' error number.
    DWORD openNow(DWORD access, DWORD shared) {
        const auto open = [&]() -> DWORD {
            file_.reset(CreateFileW(longPath_.c_str(), access, shared, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
            return isValid(file_) ? 0 : GetLastError();
        };
        return openWhenFree(open, [] { Sleep(kReplacementPause); });
    }

    void require(bool succeeded) const {
        if (!succeeded) throw fileError(GetLastError(), path_);
    }

    std::wstring path_;
    std::wstring longPath_;
    UniqueHandle file_{INVALID_HANDLE_VALUE};
};

}  // namespace

std::unique_ptr<RecordFile> WinRecordFiles::at(const std::wstring& path) {
    return std::make_unique<WinRecordFile>(path);
}
