#pragma once

#include <windows.h>

#include "ports/files.h"

/// The Windows calls that tell who a directory is; a test answers them as other file systems do.
class IdentityCalls {
 public:
    virtual ~IdentityCalls() = default;
    virtual bool wide(HANDLE directory, FILE_ID_INFO& identity);
    virtual bool narrow(HANDLE directory, BY_HANDLE_FILE_INFORMATION& information);
};

/// The identity of an open directory: by 128 bits where the file system has them, since 64 do not
/// tell directories of ReFS apart, else by 64 (FILE_ID_INFO and BY_HANDLE_FILE_INFORMATION
/// structures). False, with the last error set, when it has neither.
bool identify(HANDLE directory, DirectoryId& id, IdentityCalls& calls);
