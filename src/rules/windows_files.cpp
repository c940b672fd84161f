#include "rules/windows_files.h"

RuntimeError fileError(std::uint32_t code, const std::wstring& path) {
    switch (code) {
        case windows_error::kFileNotFound:
            return errors::fileNotFound(path);
        case windows_error::kPathNotFound:
        case windows_error::kInvalidDrive:
        case windows_error::kInvalidName:
        case windows_error::kBadPathName:
        case windows_error::kBadNetworkPath:
        case windows_error::kBadNetworkName:
        case windows_error::kNotADirectory:
        case windows_error::kNotReady:
            return errors::pathNotFound(path);
        case windows_error::kSharingViolation:
        case windows_error::kLockViolation:
            return errors::permissionDenied(path);
        default:
            return errors::fileAccess(path);
    }
}

RuntimeError directoryError(std::uint32_t code, const std::wstring& path) {
    switch (code) {
        case windows_error::kFileNotFound:
            return errors::pathNotFound(path);
        case windows_error::kAccessDenied:
            return errors::permissionDenied(path);
        default: {
            RuntimeError error = fileError(code, path);
            return error.number == 75 ? errors::pathNotFound(path) : error;
        }
    }
}

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

namespace {

bool hasAll(std::uint32_t attributes, std::uint32_t wanted) {
    return (attributes & wanted) == wanted;
}

/// Documents lie in hidden directories, too; only those that the Explorer itself keeps from its
/// users hold none. Beside an open document stands a hidden lock file of its kind.
bool isLeftOut(std::uint32_t attributes) {
    return hasAll(attributes, attribute::kDirectory)
               ? hasAll(attributes, attribute::kHidden | attribute::kSystem)
               : hasAll(attributes, attribute::kHidden);
}

/// Whether the name stands for another one (the IsReparseTagNameSurrogate macro). Directories kept
/// in a cloud, deduplicated or compressed ones have a tag, too, but are what they seem to be.
bool standsForAnother(std::uint32_t attributes, std::uint32_t reparseTag) {
    constexpr std::uint32_t kNameSurrogate = 0x20000000;
    return hasAll(attributes, attribute::kReparsePoint) && hasAll(reparseTag, kNameSurrogate);
}

}  // namespace

DirectoryEntry directoryEntry(std::wstring_view name, std::uint32_t attributes,
                              std::uint32_t reparseTag) {
    return {.name = name,
            .isDirectory = hasAll(attributes, attribute::kDirectory),
            .isLeftOut = isLeftOut(attributes),
            .isLink = standsForAnother(attributes, reparseTag)};
}
