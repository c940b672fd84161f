#pragma once

#include <windows.h>

#include "ports/files.h"
#include "rules/windows_files.h"
#include "win32/process/handles.h"

/// The steps carried out by Windows; a test makes them fail.
class WinReplacementSteps : public ReplacementSteps {
 public:
    bool isProtected(const std::wstring& path) override;
    std::wstring nameBeside(const std::wstring& path) override;
    std::uint32_t create(const std::wstring& path) override;
    std::uint32_t write(std::string_view bytes) override;
    std::uint32_t flush() override;
    void close() override { file_.reset(INVALID_HANDLE_VALUE); }
    std::uint32_t move(const std::wstring& from, const std::wstring& to) override;
    std::uint32_t openAlone(const std::wstring& path) override;
    std::uint32_t remove(const std::wstring& path) override;
    void pause() override { Sleep(kReplacementPause); }

 private:
    UniqueHandle file_{INVALID_HANDLE_VALUE};
};

class WinRecordFiles : public RecordFiles {
 public:
    std::unique_ptr<RecordFile> at(const std::wstring& path) override;
};
