#include "platform/win32/files/win_files.h"

#include <windows.h>

#include <memory>
#include <string>

#include "platform/file_error.h"
#include "platform/win32/files/file_replacement.h"
#include "platform/long_path.h"
#include "platform/win32/process/unique.h"
#include "platform/win32/text/text_encoding.h"

namespace {

std::string readBytes(const std::wstring& path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const UniqueHandle file(CreateFileW(longPath(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!isValid(file)) throw fileError(GetLastError(), path);
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size)) throw fileError(GetLastError(), path);
    std::string bytes;
    DWORD got = 0;
    do {
        const std::size_t have = bytes.size();
        const DWORD wanted = static_cast<DWORD>(size.QuadPart) - static_cast<DWORD>(have) + 1;
        bytes.resize(have + wanted);
        if (!ReadFile(file.get(), bytes.data() + have, wanted, &got, nullptr)) {
            throw fileError(GetLastError(), path);
        }
        bytes.resize(have + got);
    } while (got != 0 && bytes.size() <= static_cast<std::size_t>(size.QuadPart));
    return bytes;
}

struct FindCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const {
        if (handle != INVALID_HANDLE_VALUE) FindClose(handle);
    }
};
using FindHandle = std::unique_ptr<HANDLE, FindCloser>;

DirectoryEntry entryOf(const WIN32_FIND_DATAW& found) {
    return {.name = found.cFileName,
            .isDirectory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
            .isHidden = (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0,
            .isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0};
}

bool isDotEntry(const wchar_t* name) {
    return name[0] == L'.' && (name[1] == 0 || (name[1] == L'.' && name[2] == 0));
}

}  // namespace

std::string WinFiles::read(const std::wstring& path) { return textInUtf8(readBytes(path)); }

void WinFiles::replace(const std::wstring& path, const WriteContent& write) {
    replaceFile(path, write);
}

void WinFiles::visit(const std::wstring& directory,
                     const std::function<void(const DirectoryEntry&)>& visitor) {
    const std::wstring pattern = longPath(directory + L"\\*");
    WIN32_FIND_DATAW found;
    const FindHandle search(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found,
                                             FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
    if (search.get() == INVALID_HANDLE_VALUE) {
        // An empty drive root has no entry at all, not even its own.
        if (GetLastError() == ERROR_FILE_NOT_FOUND) return;
        throw directoryError(GetLastError(), directory);
    }
    do {
        if (!isDotEntry(found.cFileName)) visitor(entryOf(found));
    } while (FindNextFileW(search.get(), &found));
    if (GetLastError() != ERROR_NO_MORE_FILES) throw directoryError(GetLastError(), directory);
}

DirectoryId WinFiles::identify(const std::wstring& directory) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const UniqueHandle handle(CreateFileW(longPath(directory).c_str(), FILE_READ_ATTRIBUTES,
                                          kShareAll, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    if (!isValid(handle) || !GetFileInformationByHandle(handle.get(), &information)) {
        throw directoryError(GetLastError(), directory);
    }
    return {information.dwVolumeSerialNumber,
            (static_cast<unsigned long long>(information.nFileIndexHigh) << 32) |
                information.nFileIndexLow};
}

std::vector<wchar_t> WinFiles::drives() {
    std::vector<wchar_t> letters;
    const DWORD present = GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        if (present & (1U << i)) letters.push_back(static_cast<wchar_t>(L'a' + i));
    }
    return letters;
}

std::wstring WinFiles::currentDirectory(wchar_t drive) {
    const wchar_t relative[] = {drive, L':', 0};
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetFullPathNameW(relative, MAX_PATH, path, nullptr);
    if (length == 0 || length >= MAX_PATH) return std::wstring(relative) + L"\\";
    return path;
}
