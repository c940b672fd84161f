#include "platform/win32/file_replacement.h"

#include <algorithm>

#include "platform/win32/file_error.h"
#include "platform/win32/long_path.h"
#include "platform/win32/unique_handle.h"

namespace {

/// The file written beside the old one. Removed unless it took the old one's place.
class TemporaryFile {
 public:
    explicit TemporaryFile(const std::wstring& target) : target_(target), path_(uniqueName()) {
        file_.reset(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
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
            if (!WriteFile(file_.get(), bytes.data(), wanted, &written, nullptr)) return false;
            bytes.remove_prefix(written);
        }
        return FlushFileBuffers(file_.get()) != FALSE;
    }

    bool moveOverTarget() {
        file_.reset(INVALID_HANDLE_VALUE);
        constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        // Virus scanners and indexers hold a fresh file for a moment.
        for (int attempt = 0;; ++attempt) {
            if (MoveFileExW(path_.c_str(), target_.c_str(), kFlags)) {
                created_ = false;
                return true;
            }
            if (GetLastError() != ERROR_SHARING_VIOLATION || attempt == 10) return false;
            Sleep(50);
        }
    }

 private:
    std::wstring uniqueName() const {
        return target_ + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" +
               std::to_wstring(GetTickCount64()) + L".tmp";
    }

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

void replaceFile(const std::wstring& path, std::string_view bytes) {
    const std::wstring target = longPath(path);
    requireWritable(target, path);
    DWORD failure = ERROR_SUCCESS;
    {
        TemporaryFile file(target);
        if (!file.created() || !file.write(bytes) || !file.moveOverTarget()) {
            failure = GetLastError();
        }
    }
    if (failure != ERROR_SUCCESS) throw fileError(failure, path);
}
