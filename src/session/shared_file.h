#pragma once

#include <optional>
#include <string>

#include "common/content_identity.h"
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
