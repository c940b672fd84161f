#include "document_file.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

#include "common/text.h"
#include "rules/windows_files.h"
#include "win32/process/handles.h"

namespace {

struct Kind {
    DocumentKind kind;
    const wchar_t* ending;
    const wchar_t* name;
};

constexpr Kind kKinds[] = {
    {DocumentKind::Part, L".sldprt", L"pièce"},
    {DocumentKind::Assembly, L".sldasm", L"assemblage"},
    {DocumentKind::Drawing, L".slddrw", L"mise en plan"},
};

bool isAbsolute(const std::wstring& path) {
    return path.starts_with(L"\\\\") ||
           (path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/'));
}

DWORD attributesOf(const std::wstring& path) { return GetFileAttributesW(longPath(path).c_str()); }

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

bool touchFile(const std::wstring& path) {
    if (!fileExists(path) || isReadOnly(path)) return false;
    const UniqueHandle file(CreateFileW(longPath(path).c_str(), FILE_WRITE_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return isValid(file) && SetFileTime(file.get(), nullptr, nullptr, &now);
}

std::optional<DocumentKind> kindOfFile(std::wstring_view path) {
    const size_t dot = path.rfind(L'.');
    if (dot == path.npos) return std::nullopt;
    for (const Kind& kind : kKinds) {
        if (equalIgnoringCase(path.substr(dot), kind.ending)) return kind.kind;
    }
    return std::nullopt;
}

const wchar_t* kindName(DocumentKind kind) {
    for (const Kind& known : kKinds) {
        if (known.kind == kind) return known.name;
    }
    return L"";
}
