#include "pickers/paths.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "common/text.h"

namespace {

constexpr std::wstring_view kNetwork = L"\\\\";

/// DOS device paths ("File path formats on Windows systems") don't show plainly where they lead.
std::wstring withoutDevicePrefix(std::wstring path) {
    constexpr std::wstring_view kPrefixes[] = {L"\\\\?\\", L"\\\\.\\", L"\\??\\"};
    constexpr std::wstring_view kShare = L"UNC\\";
    std::wstring_view rest = path;
    const auto begins = [&](std::wstring_view prefix) { return rest.starts_with(prefix); };
    // One prefix may hide another.
    while (std::ranges::any_of(kPrefixes, begins)) rest.remove_prefix(kPrefixes[0].size());
    if (rest.size() == path.size()) return path;
    const bool isShare = equalIgnoringCase(rest.substr(0, kShare.size()), kShare);
    return isShare ? std::wstring(kNetwork) += rest.substr(kShare.size()) : std::wstring(rest);
}

bool isOnDrive(std::wstring_view path) { return path.size() >= 2 && path[1] == L':'; }

bool isPlainName(std::wstring_view name) { return !name.empty() && name != L"." && name != L".."; }

/// Up to the next backslash.
std::wstring_view firstName(std::wstring_view path) { return path.substr(0, path.find(L'\\')); }

/// "c:\" or "\\server\share\", with the backslash even where the path lacks it; empty for none.
std::wstring rootOf(std::wstring_view path) {
    if (isOnDrive(path)) return std::wstring(path.substr(0, 2)) + L'\\';
    const std::wstring_view server = firstName(path.substr(kNetwork.size()));
    const std::size_t begin = kNetwork.size() + server.size() + 1;
    if (begin > path.size()) return {};
    const std::wstring_view share = firstName(path.substr(begin));
    // Behind "UNC" another device path could be hidden.
    if (!isPlainName(server) || server == L"?" || !isPlainName(share)) return {};
    return std::wstring(path.substr(0, begin + share.size())) + L'\\';
}

/// Adds the names of a path to its root, joined by backslashes, ".." resolved.
void addNames(std::wstring& path, std::wstring_view names) {
    const std::size_t root = path.size();
    while (!names.empty()) {
        const std::wstring_view name = firstName(names);
        names.remove_prefix(std::min(name.size() + 1, names.size()));
        if (isPlainName(name)) {
            if (path.size() > root) path += L'\\';
            path += name;
        } else if (name == L"..") {
            path.resize(std::max(root, path.rfind(L'\\')));
        }
    }
}

}  // namespace

bool isDriveRoot(std::wstring_view directory) {
    return directory.size() == 3 && directory[1] == L':' && directory[2] == L'\\';
}

std::wstring reportedPath(std::wstring_view directory) {
    while (directory.ends_with(L'\\') && !isDriveRoot(directory)) directory.remove_suffix(1);
    std::wstring path(directory);
    if (path.size() == 2 && path[1] == L':') path += L'\\';
    return path;
}

std::wstring childPath(const std::wstring& directory, std::wstring_view name) {
    std::wstring path = directory;
    if (!path.ends_with(L'\\')) path += L'\\';
    path += name;
    return path;
}

std::wstring parentPath(const std::wstring& directory) {
    const std::size_t backslash = directory.find_last_of(L'\\');
    if (isDriveRoot(directory) || backslash == std::wstring::npos || backslash < 2) {
        return directory;
    }
    // The share is the root of a network path.
    if (directory.starts_with(L"\\\\") && directory.find(L'\\', 2) == backslash) return directory;
    return reportedPath(directory.substr(0, backslash + 1));
}

std::optional<std::wstring> resolvedPath(const std::wstring& directory, std::wstring_view name) {
    std::wstring path(name);
    std::ranges::replace(path, L'/', L'\\');
    path = withoutDevicePrefix(std::move(path));
    if (!isOnDrive(path) && !path.starts_with(kNetwork)) {
        const std::wstring from = withoutDevicePrefix(directory);
        path = (path.starts_with(L'\\') ? rootOf(from) : from + L'\\') + path;
    }
    std::wstring resolved = rootOf(path);
    if (resolved.empty()) return std::nullopt;
    const std::size_t root = resolved.size();
    resolved.reserve(path.size() + 1);
    addNames(resolved, std::wstring_view(path).substr(std::min(root - 1, path.size())));
    if (resolved.size() == root) return std::nullopt;
    return resolved;
}

std::wstring serverOf(std::wstring_view path) {
    if (!path.starts_with(kNetwork)) return {};
    return upperCase(firstName(path.substr(kNetwork.size())));
}
