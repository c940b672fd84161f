#include "win32/process/win_machine.h"

#include <windows.h>

#include <memory>
#include <shellapi.h>

#include "common/runtime_error.h"
#include "win32/process/handles.h"
#include "win32/process/require.h"

namespace {

// Windows counts in steps of 100 ns from the beginning of 1601 (the FILETIME structure).
constexpr std::int64_t kStepsPerSecond = 10'000'000;
constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;

}  // namespace

std::int64_t WinClock::now() const {
    FILETIME time{};
    GetSystemTimeAsFileTime(&time);
    const std::int64_t steps =
        static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return steps / kStepsPerSecond - kFrom1601To1970;
}

std::int64_t WinClock::ticks() const { return static_cast<std::int64_t>(GetTickCount64()); }

// By the rules of that day, whether or not it is summer time now.
LocalTime WinClock::local(std::int64_t time) const {
    const std::int64_t steps = (time + kFrom1601To1970) * kStepsPerSecond;
    const FILETIME fileTime{static_cast<DWORD>(steps), static_cast<DWORD>(steps >> 32)};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    FileTimeToSystemTime(&fileTime, &universal);
    SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
    return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

namespace {

std::wstring subkey(const std::wstring& application, const std::wstring& section) {
    return L"Software\\" + application + L"\\" + section;
}

}  // namespace

std::wstring RegistrySettings::read(const std::wstring& application, const std::wstring& section,
                                    const std::wstring& key, const std::wstring& otherwise) {
    const std::wstring path = subkey(application, section);
    std::wstring value;
    DWORD bytes = 0;
    LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ,
                                  nullptr, nullptr, &bytes);
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        value.resize(bytes / sizeof(wchar_t) + 1);
        bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ, nullptr,
                              value.data(), &bytes);
        if (status == ERROR_SUCCESS) return value.substr(0, value.find(L'\0'));
    }
    return otherwise;
}

void RegistrySettings::write(const std::wstring& application, const std::wstring& section,
                             const std::wstring& key, const std::wstring& value) {
    const std::wstring path = subkey(application, section);
    const LSTATUS status =
        RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), REG_SZ, value.c_str(),
                        static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS) throw errors::fileAccess(L"HKEY_CURRENT_USER\\" + path);
}

namespace {

/// A function of Windows that makes a path of another one in a buffer. Returns the size it needs
/// when the buffer is too small, 0 when it fails.
using PathMaker = DWORD (*)(const wchar_t* path, wchar_t* buffer, DWORD size);

/// The path as it was when the function fails.
std::wstring made(PathMaker maker, const std::wstring& path) {
    std::wstring result;
    DWORD length = maker(path.c_str(), nullptr, 0);
    while (length > result.size()) {
        result.resize(length);
        length = maker(path.c_str(), result.data(), length);
    }
    result.resize(length);
    return result.empty() ? path : result;
}

DWORD makeFull(const wchar_t* path, wchar_t* buffer, DWORD size) {
    return GetFullPathNameW(path, size, buffer, nullptr);
}

DWORD makeLong(const wchar_t* path, wchar_t* buffer, DWORD size) {
    return GetLongPathNameW(path, buffer, size);
}

}  // namespace

std::wstring programDirectory() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) ==
           path.size()) {
        path.resize(path.size() * 2);
    }
    path.resize(length);
    return path.substr(0, path.find_last_of(L'\\'));
}

std::vector<std::wstring> namedFiles() {
    int count = 0;
    const Unique<wchar_t**, LocalFree> arguments(
        require(CommandLineToArgvW(GetCommandLineW(), &count), L"la ligne de commande"));
    std::vector<std::wstring> files;
    for (int i = 1; i < count; ++i) {
        files.push_back(made(makeLong, made(makeFull, arguments.get()[i])));
    }
    return files;
}

void WinPower::keepAwake(bool awake) {
    SetThreadExecutionState(awake ? ES_CONTINUOUS | ES_SYSTEM_REQUIRED : ES_CONTINUOUS);
}
