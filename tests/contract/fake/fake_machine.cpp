#include "contract/contract_ids.h"
#include "contract/machine.h"
#include "fakes/fake_platform.h"
#include "rules/windows_files.h"

class FakeMachine : public Machine, private EventSink {
 public:
    FakeMachine() {
        window_->show();
        fakes_.window(IDD_CONTRACT).listBox(IDC_CONTRACT_ONE).severalSelectable = false;
        fakes_.files.directories.insert(directory());
    }

    Window& window() override { return *window_; }
    Settings& settings() override { return fakes_.settings; }
    Files& files() override { return fakes_.files; }
    RecordFiles& records() override { return fakes_.records; }
    std::wstring directory() override { return L"c:\\contrat"; }
    void addDirectory(const std::wstring& path) override { fakes_.files.directories.insert(path); }
    void hide(const std::wstring& path, bool asSystem) override {
        fakes_.files.attributes[path] = attribute::kHidden | (asSystem ? attribute::kSystem : 0);
    }
    int eventsRaised() override { return events_; }

 private:
    void raise(int, Event) override { ++events_; }

    FakePlatform fakes_;
    std::unique_ptr<Window> window_ =
        fakes_.platform.windows.create({.dialogId = IDD_CONTRACT, .tooltips = {}}, *this);
    int events_ = 0;
};

std::unique_ptr<Machine> makeMachine() { return std::make_unique<FakeMachine>(); }
