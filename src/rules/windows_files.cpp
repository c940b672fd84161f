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

bool saysNothingIsThere(std::uint32_t code) {
    using namespace windows_error;
    return code == kFileNotFound || code == kPathNotFound || code == kInvalidName ||
           code == kBadPathName || code == kNameTooLong || code == kNotADirectory;
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

/// Documents can be in hidden directories, but not in those that even the Explorer hides always. A
/// hidden file is left out: beside an open document there is a hidden lock file with the same
/// extension.
bool isLeftOut(std::uint32_t attributes) {
    return hasAll(attributes, attribute::kDirectory)
               ? hasAll(attributes, attribute::kHidden | attribute::kSystem)
               : hasAll(attributes, attribute::kHidden);
}

/// Whether the name stands for another one (the IsReparseTagNameSurrogate macro). Directories in a
/// cloud, deduplicated or compressed ones have a tag, too, but stand for themselves.
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

namespace {

// For two seconds: virus scanners, indexers and backups hold a file only for a moment.
constexpr int kReplacementPauses = 2000 / kReplacementPause;

/// Does something again and again while its error is one of those that `isHeld` says will pass.
template <class Deed, class IsHeld, class Pause>
std::uint32_t retried(const Deed& deed, const IsHeld& isHeld, const Pause& pause) {
    for (int pauses = 0;; ++pauses) {
        const std::uint32_t error = deed();
        if (error == 0 || pauses == kReplacementPauses || !isHeld(error)) return error;
        pause();
    }
}

/// The file written beside the old one. It is removed unless it takes the old one's place.
class TemporaryFile {
 public:
    TemporaryFile(const std::wstring& path, ReplacementSteps& steps)
        : steps_(steps), path_(path), created_(steps.create(path)), stays_(created_ == 0) {}

    ~TemporaryFile() {
        if (created_ == 0) steps_.close();
        if (stays_) steps_.remove(path_);
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::uint32_t created() const { return created_; }

    std::uint32_t moveOver(const std::wstring& target) {
        if (const std::uint32_t error = steps_.flush()) return error;
        steps_.close();
        const std::uint32_t error =
            doWhenFree(target, steps_, [&] { return steps_.move(path_, target); });
        stays_ = error != 0;
        return error;
    }

 private:
    ReplacementSteps& steps_;
    std::wstring path_;
    std::uint32_t created_;
    bool stays_;
};

}  // namespace

std::uint32_t openWhenFree(const std::function<std::uint32_t()>& open,
                           const std::function<void()>& pause) {
    const auto isInTheWay = [](std::uint32_t error) {
        return error == windows_error::kSharingViolation ||
               error == windows_error::kLockViolation || error == windows_error::kAccessDenied;
    };
    return retried(open, isInTheWay, pause);
}

std::uint32_t doWhenFree(const std::wstring& path, ReplacementSteps& steps,
                         const std::function<std::uint32_t()>& deed) {
    const auto isHeld = [](std::uint32_t error) {
        return error == windows_error::kSharingViolation;
    };
    const auto told = [&] {
        const std::uint32_t error = deed();
        if (error != windows_error::kAccessDenied) return error;
        // Windows may say "access denied" when a file is merely in use (the MoveFileEx function):
        // opening it shows which. One that can be opened has been released in the meantime.
        const std::uint32_t looking = steps.openAlone(path);
        return looking == 0 || isHeld(looking) ? windows_error::kSharingViolation : error;
    };
    return retried(told, isHeld, [&] { steps.pause(); });
}

void replaceFile(const std::wstring& path, const WriteContent& write, ReplacementSteps& steps) {
    const auto require = [&](std::uint32_t error) {
        if (error != 0) throw fileError(error, path);
    };
    const std::wstring target = longPath(path);
    if (steps.isProtected(target)) throw errors::fileAccess(path);
    TemporaryFile file(steps.nameBeside(target), steps);
    require(file.created());
    write([&](std::string_view bytes) { require(steps.write(bytes)); });
    require(file.moveOver(target));
}
