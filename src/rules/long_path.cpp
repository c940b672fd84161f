#include "rules/long_path.h"

namespace {

std::wstring singleBackslashes(const std::wstring& path, std::size_t from) {
    std::wstring result;
    for (std::size_t i = from; i < path.size(); ++i) {
        const wchar_t c = path[i] == L'/' ? L'\\' : path[i];
        if (c != L'\\' || result.empty() || result.back() != L'\\') result += c;
    }
    return result;
}

}  // namespace

std::wstring longPath(const std::wstring& path) {
    if (path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\")) return path;
    if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + singleBackslashes(path, 2);
    if (path.size() >= 3 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/')) {
        return L"\\\\?\\" + singleBackslashes(path, 0);
    }
    return path;
}
