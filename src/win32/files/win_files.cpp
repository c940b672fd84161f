#include "win32/files/win_files.h"

#include <windows.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <winnetwk.h>

#include "common/runtime_error.h"
#include "rules/windows_files.h"
#include "win32/files/win_written_files.h"
#include "win32/process/handles.h"
#include "win32/process/require.h"

namespace {

/// File systems without identities of this size return all bits cleared or all set (File System
/// Control Codes, 128-bit file ID).
bool isGiven(const FILE_ID_128& id) {
    const auto all = [&](BYTE value) {
        return std::ranges::all_of(id.Identifier, [&](BYTE one) { return one == value; });
    };
    return !all(0) && !all(0xFF);
}

void put(DWORD value, std::uint8_t* bytes) {
    for (int i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

}  // namespace

bool IdentityCalls::wide(HANDLE directory, FILE_ID_INFO& identity) {
    return GetFileInformationByHandleEx(directory, FileIdInfo, &identity, sizeof identity) != FALSE;
}

bool IdentityCalls::narrow(HANDLE directory, BY_HANDLE_FILE_INFORMATION& information) {
    return GetFileInformationByHandle(directory, &information) != FALSE;
}

bool identify(HANDLE directory, DirectoryId& id, IdentityCalls& calls) {
    FILE_ID_INFO identity{};
    if (calls.wide(directory, identity) && isGiven(identity.FileId)) {
        id.volume = identity.VolumeSerialNumber;
        std::ranges::copy(identity.FileId.Identifier, id.file.begin());
        return true;
    }
    BY_HANDLE_FILE_INFORMATION information{};
    if (!calls.narrow(directory, information)) return false;
    id = {.volume = information.dwVolumeSerialNumber, .file = {}};
    put(information.nFileIndexLow, id.file.data());
    put(information.nFileIndexHigh, id.file.data() + 4);
    return true;
}

namespace {

struct FindCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const {
        if (handle != INVALID_HANDLE_VALUE) FindClose(handle);
    }
};
using FindHandle = std::unique_ptr<HANDLE, FindCloser>;

static_assert(attribute::kHidden == FILE_ATTRIBUTE_HIDDEN &&
              attribute::kSystem == FILE_ATTRIBUTE_SYSTEM &&
              attribute::kDirectory == FILE_ATTRIBUTE_DIRECTORY &&
              attribute::kReparsePoint == FILE_ATTRIBUTE_REPARSE_POINT &&
              kMountPointTag == IO_REPARSE_TAG_MOUNT_POINT);

/// Others may do with the file what they like meanwhile. One that a program shares with nobody is
/// waited for: scanners and backups let go of it soon.
UniqueHandle openToRead(const std::wstring& path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const std::wstring where = longPath(path);
    UniqueHandle file;
    WinReplacementSteps steps;
    const auto error = doWhenFree(where, steps, [&]() -> std::uint32_t {
        file.reset(CreateFileW(where.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                               FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
        return isValid(file) ? 0 : GetLastError();
    });
    if (error != 0) throw fileError(error, path);
    return file;
}

bool isDotEntry(const wchar_t* name) {
    return name[0] == L'.' && (name[1] == 0 || (name[1] == L'.' && name[2] == 0));
}

}  // namespace

void makeWritable(const std::wstring& file) {
    const DWORD attributes = GetFileAttributesW(longPath(file).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_READONLY)) return;
    SetFileAttributesW(longPath(file).c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
}

DirectoryEntry entryOf(const WIN32_FIND_DATAW& found) {
    return directoryEntry(found.cFileName, found.dwFileAttributes, found.dwReserved0);
}

std::string WinFiles::readBytes(const std::wstring& path) {
    return readAtMost(path, std::numeric_limits<std::int64_t>::max());
}

std::string WinFiles::readAtMost(const std::wstring& path, std::int64_t most) {
    const UniqueHandle file = openToRead(path);
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size)) throw fileError(GetLastError(), path);
    if (size.QuadPart > most) throw errors::fileAccess(path);
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t have = 0;
    for (DWORD got = 1; got != 0 && have < bytes.size(); have += got) {
        const auto wanted = std::min<std::size_t>(bytes.size() - have, 1U << 30);
        if (!ReadFile(file.get(), bytes.data() + have, static_cast<DWORD>(wanted), &got, nullptr)) {
            throw fileError(GetLastError(), path);
        }
    }
    bytes.resize(have);
    return bytes;
}

void WinFiles::replace(const std::wstring& path, const WriteContent& write) {
    WinReplacementSteps steps;
    replaceFile(path, write, steps);
}

PathKind WinFiles::kindOf(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(longPath(path).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES) {
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) ? PathKind::Directory : PathKind::File;
    }
    const DWORD error = GetLastError();
    if (saysNothingIsThere(error)) return PathKind::Nothing;
    throw fileError(error, path);
}

std::uint64_t WinFiles::sizeOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(longPath(path).c_str(), GetFileExInfoStandard, &data)) {
        throw fileError(GetLastError(), path);
    }
    return (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
}

void WinFiles::keepCopy(const std::wstring& file, const std::wstring& copy) {
    const std::string bytes = readBytes(file);
    makeWritable(copy);
    replace(copy, [&](const ByteSink& sink) { sink(bytes); });
}

void WinFiles::remove(const std::wstring& file) {
    makeWritable(file);
    const std::wstring path = longPath(file);
    WinReplacementSteps steps;
    const auto error = doWhenFree(path, steps, [&] { return steps.remove(path); });
    if (error != 0) throw fileError(error, file);
}

void WinFiles::visit(const std::wstring& directory,
                     const std::function<void(const DirectoryEntry&)>& visitor) {
    const std::wstring pattern = longPath(directory + L"\\*");
    WIN32_FIND_DATAW found;
    const FindHandle search(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found,
                                             FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
    if (search.get() == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        // An empty drive root has no entry at all, not even its own; some servers say so in the
        // other way.
        if (error == ERROR_FILE_NOT_FOUND || error == ERROR_NO_MORE_FILES) return;
        throw directoryError(error, directory);
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
    DirectoryId id{};
    IdentityCalls calls;
    if (!isValid(handle) || !::identify(handle.get(), id, calls)) {
        throw directoryError(GetLastError(), directory);
    }
    return id;
}

std::vector<wchar_t> WinFiles::drives() {
    std::vector<wchar_t> letters;
    const DWORD present = GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        if (present & (1U << i)) letters.push_back(static_cast<wchar_t>(L'a' + i));
    }
    return letters;
}

std::vector<std::wstring> WinFiles::sharesOfDrives() {
    static const auto connectionOf =
        systemFunction<decltype(WNetGetConnectionW)>(L"mpr", "WNetGetConnectionW");
    std::vector<std::wstring> shares;
    for (const wchar_t letter : drives()) {
        const wchar_t drive[] = {letter, L':', 0};
        wchar_t share[MAX_PATH] = {};
        DWORD length = MAX_PATH;
        if (connectionOf && connectionOf(drive, share, &length) == NO_ERROR) {
            shares.emplace_back(share);
        }
    }
    return shares;
}

std::wstring WinFiles::currentDirectory(wchar_t drive) {
    const wchar_t relative[] = {drive, L':', 0};
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetFullPathNameW(relative, MAX_PATH, path, nullptr);
    if (length == 0 || length >= MAX_PATH) return std::wstring(relative) + L"\\";
    return path;
}

namespace {

using Job = std::function<void()>;

void CALLBACK run(PTP_CALLBACK_INSTANCE, void* job) {
    (*std::unique_ptr<Job>(static_cast<Job*>(job)))();
}

}  // namespace

bool PoolWorkers::start(std::function<void()> job) {
    TP_CALLBACK_ENVIRON environment;
    InitializeThreadpoolEnvironment(&environment);
    // File servers can be slow: the pool then adds a thread for the next job.
    SetThreadpoolCallbackRunsLong(&environment);
    auto kept = std::make_unique<Job>(std::move(job));
    if (!TrySubmitThreadpoolCallback(run, kept.get(), &environment)) return false;
    kept.release();
    return true;
}
