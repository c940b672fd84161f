#include <windows.h>

#include <commctrl.h>

#include "contract/machine.h"
#include "contract/win32/real_windows.h"
#include "contract/win32/scratch_directory.h"
#include "platform/long_path.h"
#include "platform/win32/files/win_files.h"
#include "platform/win32/process/registry_settings.h"

namespace {

class WinMachine : public Machine, private RealWindows, private EventSink {
 public:
    WinMachine() { window_->show(); }
    ~WinMachine() override { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\tarnwick contract"); }
    WinMachine(const WinMachine&) = delete;
    WinMachine& operator=(const WinMachine&) = delete;

    Window& window() override { return *window_; }
    Settings& settings() override { return settings_; }
    Files& files() override { return files_; }
    std::wstring directory() override { return directory_.path(); }
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

    /// The class of tab strips is registered before a window has one.
    static std::unique_ptr<Window> makeWindow(DialogFactory& factory, EventSink& events) {
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TAB_CLASSES};
        InitCommonControlsEx(&controls);
        return factory.create({.dialogId = IDD_CONTRACT, .tooltips = {}}, events);
    }

    std::unique_ptr<Window> window_ = makeWindow(factory, *this);
    int events_ = 0;
    RegistrySettings settings_;
    WinFiles files_;
    ScratchDirectory directory_;
};

}  // namespace

std::unique_ptr<Machine> makeMachine() { return std::make_unique<WinMachine>(); }
