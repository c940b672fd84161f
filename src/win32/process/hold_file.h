#pragma once

#include <windows.h>

#include <string>

#include "rules/hold_protocol.h"
#include "win32/process/unique.h"

/// The file that tells other users and machines who has a list open: hidden, beside the list, held
/// open against writers. The system deletes it when its program ends, however it does; one that a
/// power cut left is nobody's, and taken over. What a link leads to is never written.
class HoldFile {
 public:
    explicit HoldFile(const std::wstring& path);

    /// Creates it and puts these names in.
    HoldFileState take(const ListHolder& us);
    /// Whether what was taken is still open, on a server as well.
    bool isOpen() const;

    /// The names in a file that another program has.
    ListHolder holder() const;

 private:
    std::wstring path_;
    UniqueHandle file_{INVALID_HANDLE_VALUE};
};
