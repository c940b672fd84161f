#pragma once

#include <windows.h>

#include "ports/files.h"
#include "ports/search.h"

/// The Windows calls that identify a directory; a test answers them as other file systems do.
class IdentityCalls {
 public:
    virtual ~IdentityCalls() = default;
    virtual bool wide(HANDLE directory, FILE_ID_INFO& identity);
    virtual bool narrow(HANDLE directory, BY_HANDLE_FILE_INFORMATION& information);
};

/// The identity of an open directory: 128 bits where the file system has them, since 64 do not
/// distinguish directories of ReFS, otherwise 64 (FILE_ID_INFO and BY_HANDLE_FILE_INFORMATION
/// structures). False, with the last error set, when it has neither.
bool identify(HANDLE directory, DirectoryId& id, IdentityCalls& calls);

class WinFiles : public Files {
 public:
    std::string readBytes(const std::wstring& path) override;
    /// The same; raises 75 for a file of more than so many bytes.
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

/// A read-only file can be neither replaced nor deleted (the DeleteFile function). When this fails
/// the call that follows reports it.
void makeWritable(const std::wstring& file);

/// An entry of a directory, as Windows lists it.
DirectoryEntry entryOf(const WIN32_FIND_DATAW& found);

/// The system's thread pool, which has no threads while there is nothing to do.
class PoolWorkers : public Workers {
 public:
    bool start(std::function<void()> job) override;
};
