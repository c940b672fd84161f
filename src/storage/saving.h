#pragma once

#include <functional>
#include <optional>
#include <string>

#include "common/bytes.h"
#include "ports/files.h"

struct Platform;

/// A file of the program's that others may change, too.
struct SharedFile {
    std::wstring path;
    std::wstring othersCopy;  ///< where what others made of it is kept
    /// What the program read or wrote last; nothing when the file wasn't there.
    std::optional<ContentIdentity> known = std::nullopt;
};

/// Writes the file anew, and knows it then. When it has been changed by others it is kept as it was
/// found, and the user told; when that fails nothing is written, the user is told, and the answer
/// is false. Raises 70, 75 or 76, or what `write` raises.
bool save(Platform& platform, SharedFile& file, const WriteContent& write);

struct Platform;
struct ProgramFiles;

/// Takes the list file away, or has another take its place, by `replacing`. If it has a line it
/// stays as the previous list, and marks kept of it as the previous list's, in place of older ones.
/// When another program has the previous list open nothing is done: the user is told, and the
/// answer is false. Raises 7, 70, 75, 76 or what `replacing` raises, and then leaves all as it was.
bool replaceList(Platform& platform, const ProgramFiles& files,
                 const std::function<void()>& replacing);
