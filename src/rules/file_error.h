#pragma once

#include <cstdint>
#include <string>

#include "common/runtime_error.h"

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
