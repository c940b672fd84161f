#include "rules/file_replacement.h"

#include "rules/windows_files.h"

namespace {

// Virus scanners, indexers and backups hold a file for a moment.
constexpr int kReplacementPauses = 2000 / kReplacementPause;

/// Whether nothing was done because another program has the file open. Windows then speaks of
/// denied access as often as of sharing (the MoveFileEx function): opening it tells which.
bool isHeld(const std::wstring& file, std::uint32_t error, ReplacementSteps& steps) {
    if (error == windows_error::kAccessDenied) error = steps.openAlone(file);
    // What can be opened now was let go of in the meantime.
    return error == 0 || error == windows_error::kSharingViolation;
}

/// The file written beside the old one. Removed unless it took the old one's place.
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
            withPatience(target, steps_, [&] { return steps_.move(path_, target); });
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

std::uint32_t openPatiently(const std::function<std::uint32_t()>& open,
                            const std::function<void()>& pause) {
    for (int pauses = 0;; ++pauses) {
        const std::uint32_t error = open();
        const bool held = error == windows_error::kSharingViolation ||
                          error == windows_error::kLockViolation ||
                          error == windows_error::kAccessDenied;
        if (!held || pauses == kReplacementPauses) return error;
        pause();
    }
}

std::uint32_t withPatience(const std::wstring& path, ReplacementSteps& steps,
                           const std::function<std::uint32_t()>& deed) {
    for (int pauses = 0;; ++pauses) {
        const std::uint32_t error = deed();
        if (error == 0 || !isHeld(path, error, steps)) return error;
        if (pauses == kReplacementPauses) return windows_error::kSharingViolation;
        steps.pause();
    }
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
