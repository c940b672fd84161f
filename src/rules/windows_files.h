#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "common/runtime_error.h"
#include "ports/files.h"

/// Windows' numbers of the file errors that are distinguished (winerror.h).
namespace windows_error {
inline constexpr std::uint32_t kFileNotFound = 2;
inline constexpr std::uint32_t kPathNotFound = 3;
inline constexpr std::uint32_t kAccessDenied = 5;
inline constexpr std::uint32_t kInvalidDrive = 15;
inline constexpr std::uint32_t kNotReady = 21;
inline constexpr std::uint32_t kSharingViolation = 32;
inline constexpr std::uint32_t kLockViolation = 33;
inline constexpr std::uint32_t kBadNetworkPath = 53;
inline constexpr std::uint32_t kBadNetworkName = 67;
inline constexpr std::uint32_t kInvalidName = 123;
inline constexpr std::uint32_t kBadPathName = 161;
inline constexpr std::uint32_t kNameTooLong = 206;
inline constexpr std::uint32_t kNotADirectory = 267;
}  // namespace windows_error

/// The run-time error for a Windows error number met on a path.
RuntimeError fileError(std::uint32_t code, const std::wstring& path);

/// The same for a directory that is to be read: denied access is 70.
RuntimeError directoryError(std::uint32_t code, const std::wstring& path);

/// Whether this error, met when looking for a path, says that nothing can be there: it isn't found,
/// or Windows allows no such name (System Error Codes). Any other leaves it open.
bool saysNothingIsThere(std::uint32_t code);

/// A full path in the form that Windows takes at any length and with any name (the \\?\ prefix),
/// which allows single backslashes only. Other paths stay as they are.
std::wstring longPath(const std::wstring& path);

/// Bits of a name's attributes, as Windows numbers them (File Attribute Constants).
namespace attribute {
inline constexpr std::uint32_t kHidden = 0x2;
inline constexpr std::uint32_t kSystem = 0x4;
inline constexpr std::uint32_t kDirectory = 0x10;
inline constexpr std::uint32_t kReparsePoint = 0x400;
}  // namespace attribute

/// The tag of a junction or mounted folder (Reparse Point Tags).
inline constexpr std::uint32_t kMountPointTag = 0xA0000003;

/// An entry of a directory by what its listing says. The reparse tag counts only when the
/// attributes say that there is one.
DirectoryEntry directoryEntry(std::wstring_view name, std::uint32_t attributes,
                              std::uint32_t reparseTag);

/// What the machine does to replace a file, one step at a time. Steps that can fail return Windows'
/// error number, 0 for success.
class ReplacementSteps {
 public:
    virtual ~ReplacementSteps() = default;

    /// Whether the path leads to a read-only file or to a directory.
    virtual bool isProtected(const std::wstring& path) = 0;
    /// A path beside this one that no other replacement uses.
    virtual std::wstring nameBeside(const std::wstring& path) = 0;

    /// Creates a file and keeps it open, for this program alone, until `close`.
    virtual std::uint32_t create(const std::wstring& path) = 0;
    virtual std::uint32_t write(std::string_view bytes) = 0;
    virtual std::uint32_t flush() = 0;
    virtual void close() = 0;

    virtual std::uint32_t move(const std::wstring& from, const std::wstring& to) = 0;
    /// Opens a file for this program alone, and closes it again.
    virtual std::uint32_t openAlone(const std::wstring& path) = 0;
    virtual std::uint32_t remove(const std::wstring& path) = 0;

    /// Waits for kReplacementPause.
    virtual void pause() = 0;
};

inline constexpr int kReplacementPause = 50;  ///< milliseconds

/// Opens a file as soon as no other program is in the way, but tries for two seconds at most: a
/// scanner may have it open, or it is about to be deleted (Windows then denies access until its
/// last user closes it). `open` and this return Windows' error number, 0 for success; `pause` waits
/// for kReplacementPause.
std::uint32_t openWhenFree(const std::function<std::uint32_t()>& open,
                           const std::function<void()>& pause);

/// Does something with a file as soon as no other program has it open, but tries for two seconds at
/// most. `deed` and this return Windows' error number.
std::uint32_t doWhenFree(const std::wstring& path, ReplacementSteps& steps,
                         const std::function<std::uint32_t()>& deed);

/// Replaces a whole file. The new one is written beside it, flushed, then moved over it, so that at
/// any moment the path holds all of the old bytes or all of the new. Raises 70, 75 or 76, or what
/// `write` raises, and then leaves the old file as it was and nothing beside it.
void replaceFile(const std::wstring& path, const WriteContent& write, ReplacementSteps& steps);
