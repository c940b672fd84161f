#pragma once

#include <windows.h>

#include "ports/files.h"
#include "ports/search.h"

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

class WinFiles : public Files {
 public:
    std::string readBytes(const std::wstring& path) override;
    /// The same of a file that is no larger than so many bytes; 75 for a larger one.
    std::string readAtMost(const std::wstring& path, std::int64_t most);
    void replace(const std::wstring& path, const WriteContent& write) override;
    PathKind kindOf(const std::wstring& path) override;
    std::uint64_t sizeOf(const std::wstring& path) override;
    void keepCopy(const std::wstring& file, const std::wstring& copy) override;
    void remove(const std::wstring& file) override;
    void visit(const std::wstring& directory,
               const std::function<void(const DirectoryEntry&)>& visitor) override;
    DirectoryId identify(const std::wstring& directory) override;
    std::vector<wchar_t> drives() override;
    std::vector<std::wstring> sharesOfDrives() override;
    std::wstring currentDirectory(wchar_t drive) override;
};

/// What Windows says of a name in a directory.
DirectoryEntry entryOf(const WIN32_FIND_DATAW& found);

/// The threads of the system's own pool: there are none while nothing is to be done.
class PoolWorkers : public Workers {
 public:
    bool start(std::function<void()> job) override;
};
