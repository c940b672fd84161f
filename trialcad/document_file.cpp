#include "document_file.h"

#include <windows.h>

#include "win32/process/unique.h"

namespace {

bool isAbsolute(const std::wstring& path) {
    return path.starts_with(L"\\\\") || (path.size() > 2 && path[1] == L':' && path[2] == L'\\');
}

/// The form that has no limit of length and in which a name may end with a dot.
std::wstring verbatim(const std::wstring& path) {
    if (path.starts_with(L"\\\\?\\") || !isAbsolute(path)) return path;
    if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC" + path.substr(1);
    return L"\\\\?\\" + path;
}

DWORD attributesOf(const std::wstring& path) { return GetFileAttributesW(verbatim(path).c_str()); }

UniqueHandle openFile(const std::wstring& path, DWORD access) {
    return UniqueHandle(CreateFileW(verbatim(path).c_str(), access,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
}

bool hasSteps(const std::wstring& path) {
    return path.find(L'/') != path.npos || path.find(L"\\.\\") != path.npos ||
           path.find(L"\\..\\") != path.npos;
}

std::wstring withoutSteps(const std::wstring& path) {
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full.empty() ? path : full;
}

}  // namespace

std::wstring absolutePath(const std::wstring& path, const std::wstring& directory) {
    const std::wstring whole = isAbsolute(path) ? path : directory + L"\\" + path;
    return hasSteps(whole) && !whole.starts_with(L"\\\\?\\") ? withoutSteps(whole) : whole;
}

std::wstring fileNameOf(const std::wstring& path) {
    return path.substr(path.find_last_of(L"\\/") + 1);
}

std::wstring directoryOf(const std::wstring& path) {
    const size_t separator = path.find_last_of(L"\\/");
    return separator == path.npos ? L"" : path.substr(0, separator);
}

bool fileExists(const std::wstring& path) {
    const DWORD attributes = attributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool directoryExists(const std::wstring& path) {
    const DWORD attributes = attributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool isReadOnly(const std::wstring& path) {
    return fileExists(path) && (attributesOf(path) & FILE_ATTRIBUTE_READONLY);
}

std::optional<std::string> readFile(const std::wstring& path) {
    const UniqueHandle file = openFile(path, GENERIC_READ);
    LARGE_INTEGER size{};
    if (!isValid(file) || !GetFileSizeEx(file.get(), &size)) return std::nullopt;
    std::string bytes(static_cast<size_t>(size.QuadPart), '\0');
    DWORD got = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr))
        return std::nullopt;
    bytes.resize(got);
    return bytes;
}

bool touchFile(const std::wstring& path) {
    if (!fileExists(path) || isReadOnly(path)) return false;
    const UniqueHandle file = openFile(path, FILE_WRITE_ATTRIBUTES);
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return isValid(file) && SetFileTime(file.get(), nullptr, nullptr, &now);
}
