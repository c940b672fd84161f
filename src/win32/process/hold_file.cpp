#include "win32/process/hold_file.h"

#include "common/encoding.h"
#include "common/text.h"
#include "rules/windows_files.h"

namespace {

// Two names, of at most 256 and 63 characters.
constexpr DWORD kMostBytes = 2000;

/// Reading and writing both, although nothing is read: a file server may otherwise refuse a write
/// now and then (the CreateFile function). Nothing is written yet, in case it is a link.
UniqueHandle create(const std::wstring& path) {
    constexpr DWORD kFlags =
        FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT;
    return UniqueHandle(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                    nullptr, OPEN_ALWAYS, kFlags, nullptr));
}

/// Whether a file has its bytes to itself, under no other name.
bool isPlain(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION facts{};
    return GetFileInformationByHandle(file, &facts) && facts.nNumberOfLinks == 1 &&
           !(facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

/// A file that is to be deleted can be opened by those only who share its deletion.
UniqueHandle open(const std::wstring& path, DWORD alsoShared) {
    return UniqueHandle(CreateFileW(path.c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_DELETE | alsoShared, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
}

DWORD errorOf(const UniqueHandle& file) { return isValid(file) ? 0 : GetLastError(); }

/// What can't be written is missing in what others are told, no more.
void write(HANDLE file, const ListHolder& names) {
    std::string bytes;
    appendUtf8(bytes, names.user + L"\r\n" + names.machine + L"\r\n");
    SetEndOfFile(file);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    FlushFileBuffers(file);
}

}  // namespace

HoldFile::HoldFile(const std::wstring& path) : path_(longPath(path)) {}

HoldFileState HoldFile::take(const ListHolder& us) {
    file_.reset(INVALID_HANDLE_VALUE);
    file_ = create(path_);
    const DWORD creating = errorOf(file_);
    if (creating == 0) {
        if (isPlain(file_.get())) {
            write(file_.get(), us);
            return HoldFileState::Ours;
        }
        // The link goes with its handle, and what it leads to stays as it is.
        file_.reset(INVALID_HANDLE_VALUE);
        return HoldFileState::Busy;
    }
    const UniqueHandle found = open(path_, 0);
    return holdFileState(creating, errorOf(found));
}

bool HoldFile::isOpen() const {
    BY_HANDLE_FILE_INFORMATION facts{};
    return isValid(file_) && GetFileInformationByHandle(file_.get(), &facts);
}

ListHolder HoldFile::holder() const {
    const UniqueHandle file = open(path_, FILE_SHARE_WRITE);
    std::string bytes(kMostBytes, '\0');
    DWORD got = 0;
    if (!isValid(file) || !ReadFile(file.get(), bytes.data(), kMostBytes, &got, nullptr)) return {};
    std::string_view rest(bytes.data(), got);
    const std::wstring user = wideText(takeLine(rest));
    return {user, wideText(takeLine(rest))};
}
