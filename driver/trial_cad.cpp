#include "driver/trial_cad.h"

#include <windows.h>

#include <objbase.h>
#include <sstream>

#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {
void TrialCad::Start(const std::vector<std::string>& options) {
    std::vector<std::wstring> arguments{L"--journal", Journal()};
    for (const std::string& option : options) arguments.push_back(Wide(option));
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    process_ = std::make_unique<Process>(Sandbox::BuiltPrograms() / "tarnwick-trialcad.exe",
                                         arguments, sandbox_.Directory());
    WaitFor("the trial CAD session to be registered",
            [this] { return static_cast<bool>(Application()); });
}

void TrialCad::Close() {
    Post(Window(), WM_CLOSE);
    process_->WaitForExit();
}

HWND TrialCad::Window() const {
    for (HWND window : TopLevelWindows(process_->Id()))
        if (ClassOf(window) == "TarnwickTrialCad") return window;
    throw std::runtime_error("the trial CAD session has no window");
}

std::vector<std::string> TrialCad::Calls() const {
    std::istringstream journal(ReadFileBytes(Journal()).value_or(""));
    std::vector<std::string> calls;
    for (std::string call; std::getline(journal, call);) calls.push_back(call);
    return calls;
}

}  // namespace driver
