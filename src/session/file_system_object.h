#pragma once

#include <string>

#include "ports/automation.h"

/// The system's own object for files (Scripting.FileSystemObject).
class FileSystemObject {
 public:
    /// Raises 440 when it can't be created.
    explicit FileSystemObject(Automation& automation);

    bool fileExists(const std::wstring& path);

 private:
    ObjectPtr object_;
};
