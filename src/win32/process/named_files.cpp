#include "win32/process/named_files.h"

#include <windows.h>

#include <memory>
#include <shellapi.h>

#include "win32/process/require.h"
#include "win32/process/unique.h"

namespace {

/// A function of Windows that puts the path it makes of another into a buffer, and tells the size
/// it needs when that is too small. 0: it failed.
using PathMaker = DWORD (*)(const wchar_t* path, wchar_t* buffer, DWORD size);

/// The path itself where none can be made of it.
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
