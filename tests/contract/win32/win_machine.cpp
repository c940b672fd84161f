#include "win32/process/win_machine.h"

#include <filesystem>

#include "contract/machine.h"
#include "contract/win32/real_windows.h"
#include "rules/windows_files.h"
#include "win32/files/win_written_files.h"

static std::wstring uniquePath() {
    static int number = 0;
    return std::filesystem::temp_directory_path().wstring() + L"tarnwick-contract-" +
           std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(++number);
}

/// A directory of its own among the temporary files, removed with all that is in it.
struct ScratchDirectory {
    ScratchDirectory() { CreateDirectoryW(path.c_str(), nullptr); }
    ~ScratchDirectory() {
        std::error_code left;
        std::filesystem::remove_all(longPath(path), left);
    }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    const std::wstring path = uniquePath();
};

class WinMachine : public Machine, private RealWindows, private EventSink {
 public:
    WinMachine() { window_->show(); }
    ~WinMachine() override { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\tarnwick contract"); }
    WinMachine(const WinMachine&) = delete;
    WinMachine& operator=(const WinMachine&) = delete;

    Window& window() override { return *window_; }
    Settings& settings() override { return settings_; }
    Files& files() override { return files_; }
    RecordFiles& records() override { return records_; }
    std::wstring directory() override { return directory_.path; }
    void addDirectory(const std::wstring& path) override {
        CreateDirectoryW(longPath(path).c_str(), nullptr);
    }
    void hide(const std::wstring& path, bool asSystem) override {
        SetFileAttributesW(longPath(path).c_str(),
                           FILE_ATTRIBUTE_HIDDEN | (asSystem ? FILE_ATTRIBUTE_SYSTEM : 0));
    }
    int eventsRaised() override { return events_; }

 private:
    void raise(int, Event) override { ++events_; }

    std::unique_ptr<Window> window_ =
        factory.create({.dialogId = IDD_CONTRACT, .tooltips = {}}, *this);
    int events_ = 0;
    RegistrySettings settings_;
    WinFiles files_;
    WinRecordFiles records_;
    ScratchDirectory directory_;
};

std::unique_ptr<Machine> makeMachine() { return std::make_unique<WinMachine>(); }
