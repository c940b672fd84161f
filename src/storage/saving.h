#pragma once

#include <functional>
#include <optional>
#include <string>

#include "common/bytes.h"
#include "ports/files.h"

struct Platform;

/// A file of the program that others may change, too.
struct SharedFile {
    std::wstring path;
    std::wstring othersCopy;  ///< where others' version is kept
    /// What the program last read or wrote; nothing when there was no file.
    std::optional<ContentIdentity> known = std::nullopt;
};

/// Replaces the file. If others have changed it, their version is kept, and the user told. If
/// that fails, nothing is written, the user is told, and the answer is false. Raises 70, 75 or 76,
/// or what `write` raises.
bool save(Platform& platform, SharedFile& file, const WriteContent& write);

struct ProgramFiles;

/// Removes or replaces the list file by `replacing`. If it has a line it is kept as the previous
/// list, and its kept marks become the previous list's, in place of older ones. When another
/// program has the previous list open nothing is done: the user is told, and the answer is false.
/// Raises 7, 70, 75, 76 or what `replacing` raises, and then leaves all as it was.
bool replaceList(Platform& platform, const ProgramFiles& files,
                 const std::function<void()>& replacing);
