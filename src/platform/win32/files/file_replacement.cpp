#include "platform/win32/files/file_replacement.h"

#include <algorithm>

#include "common/numbers.h"
#include "platform/file_error.h"
#include "platform/long_path.h"
#include "platform/win32/process/unique.h"

namespace {

// Virus scanners, indexers and backups hold a file for a moment.
constexpr ULONGLONG kPatience = 2000;  // milliseconds
constexpr DWORD kPause = 50;           // milliseconds

/// Whether a file was not replaced because another program has it open. Windows then speaks of
/// denied access as often as of sharing (the MoveFileEx function): opening it tells which.
bool isHeld(const std::wstring& file, DWORD error) {
    if (error != ERROR_ACCESS_DENIED) return error == ERROR_SHARING_VIOLATION;
    const UniqueHandle alone(
        CreateFileW(file.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    // What can be opened now was let go of in the meantime.
    return isValid(alone) || GetLastError() == ERROR_SHARING_VIOLATION;
}

/// The file written beside the old one. Removed unless it took the old one's place.
class TemporaryFile {
 public:
    TemporaryFile(const std::wstring& target, FileCalls& calls)
        : calls_(calls), target_(target), path_(uniqueName()), file_(calls.create(path_)) {
        created_ = isValid(file_);
    }

    ~TemporaryFile() {
        file_.reset(INVALID_HANDLE_VALUE);
        if (created_) DeleteFileW(path_.c_str());
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool created() const { return created_; }

    bool write(std::string_view bytes) {
        while (!bytes.empty()) {
            const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
            DWORD written = 0;
            if (!calls_.write(file_.get(), bytes.data(), wanted, written)) return false;
            bytes.remove_prefix(written);
        }
        return true;
    }

    bool moveOverTarget() {
        if (!calls_.flush(file_.get())) return false;
        file_.reset(INVALID_HANDLE_VALUE);
        const ULONGLONG start = GetTickCount64();
        while (!calls_.move(path_, target_)) {
            if (!isHeld(target_, GetLastError())) return false;
            if (GetTickCount64() - start >= kPatience) {
                SetLastError(ERROR_SHARING_VIOLATION);
                return false;
            }
            Sleep(kPause);
        }
        created_ = false;
        return true;
    }

 private:
    std::wstring uniqueName() const {
        return target_ + L"." + decimal(static_cast<long>(GetCurrentProcessId())) + L"-" +
               decimal(static_cast<long>(GetTickCount64() & 0x7FFFFFFF)) + L".tmp";
    }

    FileCalls& calls_;
    std::wstring target_;
    std::wstring path_;
    UniqueHandle file_;
    bool created_ = false;
};

void requireWritable(const std::wstring& target, const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    if (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) {
        throw errors::fileAccess(path);
    }
}

}  // namespace

HANDLE FileCalls::create(const std::wstring& path) {
    return CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

bool FileCalls::write(HANDLE file, const char* bytes, DWORD count, DWORD& written) {
    return WriteFile(file, bytes, count, &written, nullptr) != FALSE;
}

bool FileCalls::flush(HANDLE file) { return FlushFileBuffers(file) != FALSE; }

bool FileCalls::move(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return MoveFileExW(from.c_str(), to.c_str(), kFlags) != FALSE;
}

void replaceFile(const std::wstring& path, const WriteContent& write) {
    FileCalls calls;
    replaceFile(path, write, calls);
}

void replaceFile(const std::wstring& path, const WriteContent& write, FileCalls& calls) {
    const auto require = [&](bool succeeded) {
        if (!succeeded) throw fileError(GetLastError(), path);
    };
    const std::wstring target = longPath(path);
    requireWritable(target, path);
    TemporaryFile file(target, calls);
    require(file.created());
    write([&](std::string_view bytes) { require(file.write(bytes)); });
    require(file.moveOverTarget());
}
