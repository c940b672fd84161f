#include "contract/win32/scratch_directory.h"

#include <windows.h>

#include "platform/long_path.h"
#include "platform/win32/files/win_files.h"

namespace {

std::wstring uniquePath() {
    static int number = 0;
    wchar_t temporary[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH + 1, temporary);
    return temporary + (L"tarnwick-contract-" + std::to_wstring(GetCurrentProcessId())) + L'-' +
           std::to_wstring(++number);
}

void removeTree(const std::wstring& directory) {
    WinFiles().visit(directory, [&](const DirectoryEntry& entry) {
        const std::wstring path = directory + L'\\' + std::wstring(entry.name);
        if (entry.isDirectory && !entry.isLink) {
            removeTree(path);
            return;
        }
        SetFileAttributesW(longPath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
        entry.isDirectory ? RemoveDirectoryW(longPath(path).c_str())
                          : DeleteFileW(longPath(path).c_str());
    });
    RemoveDirectoryW(longPath(directory).c_str());
}

}  // namespace

ScratchDirectory::ScratchDirectory() : path_(uniquePath()) {
    CreateDirectoryW(path_.c_str(), nullptr);
}

ScratchDirectory::~ScratchDirectory() { removeTree(path_); }
