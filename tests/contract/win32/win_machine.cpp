#include "win32/process/win_machine.h"

#include "contract/machine.h"
#include "contract/win32/real_windows.h"
#include "rules/windows_files.h"
#include "win32/files/win_written_files.h"

static std::wstring uniquePath() {
    static int number = 0;
    wchar_t temporary[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH + 1, temporary);
    return temporary + (L"tarnwick-contract-" + std::to_wstring(GetCurrentProcessId())) + L'-' +
           std::to_wstring(++number);
}

static void removeTree(const std::wstring& directory) {
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

/// A directory of its own among the temporary files, removed with all that is in it, whatever its
/// names, lengths and attributes.
struct ScratchDirectory {
    ScratchDirectory() { CreateDirectoryW(path.c_str(), nullptr); }
    ~ScratchDirectory() { removeTree(path); }
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
