#include "win32/files/win_record_files.h"

#include <windows.h>

#include "common/runtime_error.h"
#include "rules/file_error.h"
#include "rules/long_path.h"
#include "win32/files/win_files.h"
#include "win32/process/unique.h"

namespace {

/// Open as long as records are added, so that each costs no more than its own bytes. Others may
/// read, move or delete it meanwhile.
class WinRecordFile : public RecordFile {
 public:
    explicit WinRecordFile(const std::wstring& path) : path_(path), longPath_(longPath(path)) {}

    std::optional<std::string> read() override {
        try {
            return WinFiles().readBytes(path_);
        } catch (const RuntimeError&) {
            return std::nullopt;
        }
    }

    void replace(std::string_view bytes) override {
        file_.reset(INVALID_HANDLE_VALUE);
        WinFiles().replace(path_, [&](const ByteSink& file) { file(bytes); });
        constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        file_.reset(CreateFileW(longPath_.c_str(), FILE_APPEND_DATA | SYNCHRONIZE, kShareAll,
                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        require(isValid(file_));
    }

    void append(std::string_view bytes, Flush flush) override {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(bytes.size());
        require(WriteFile(file_.get(), bytes.data(), size, &written, nullptr) && written == size);
        if (flush == Flush::Now) require(FlushFileBuffers(file_.get()));
    }

    void remove() override {
        file_.reset(INVALID_HANDLE_VALUE);
        if (DeleteFileW(longPath_.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND) return;
        // Held by another program for the moment: an empty record offers nothing, either.
        const UniqueHandle emptied(CreateFileW(longPath_.c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                               nullptr, TRUNCATE_EXISTING, 0, nullptr));
    }

 private:
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
