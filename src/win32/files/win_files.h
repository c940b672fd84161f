#pragma once

#include <windows.h>

#include "ports/files.h"

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
