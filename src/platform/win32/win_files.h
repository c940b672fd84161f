#pragma once

#include "platform/files.h"

class WinFiles : public Files {
 public:
    std::wstring readText(const std::wstring& path) override;
    void replaceText(const std::wstring& path, std::wstring_view text) override;
    void visit(const std::wstring& directory,
               const std::function<void(const DirectoryEntry&)>& visitor) override;
    DirectoryId identify(const std::wstring& directory) override;
    std::vector<wchar_t> drives() override;
    std::wstring currentDirectory(wchar_t drive) override;
};
