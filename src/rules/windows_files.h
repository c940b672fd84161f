#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/runtime_error.h"
#include "ports/files.h"

/// Windows' numbers of the file errors that are told apart (winerror.h).
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
inline constexpr std::uint32_t kNotADirectory = 267;
}  // namespace windows_error

/// The run-time error for a Windows error code met on a path.
RuntimeError fileError(std::uint32_t code, const std::wstring& path);

/// The same for a directory that is to be read: a refused access is 70.
RuntimeError directoryError(std::uint32_t code, const std::wstring& path);

/// A full path in the form that Windows takes at any length and with any name (the \\?\ prefix).
/// Doubled backslashes are made single, which that form requires. Other paths stay as they are.
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

/// What a directory's listing says of a name. The reparse tag counts only when the attributes say
/// that there is one.
DirectoryEntry directoryEntry(std::wstring_view name, std::uint32_t attributes,
                              std::uint32_t reparseTag);
