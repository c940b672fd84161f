#include "driver/trial_cad.h"

#include <windows.h>

#include <algorithm>
#include <objbase.h>
#include <sstream>

#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {
void TrialCad::start(const std::vector<std::string>& options) {
    std::vector<std::wstring> arguments{L"--journal", journal()};
    for (const std::string& option : options) arguments.push_back(wide(option));
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    process_ = std::make_unique<Process>(Sandbox::builtPrograms() / "tarnwick-trialcad.exe",
                                         arguments, sandbox_.directory());
    waitFor("the trial CAD session to be registered",
            [this] { return static_cast<bool>(application()); });
}

void TrialCad::close() {
    post(window(), WM_CLOSE);
    process_->waitForExit();
}

HWND TrialCad::window() const {
    for (HWND window : topLevelWindows(process_->id())) {
        if (classOf(window) == "TarnwickTrialCad") return window;
    }
    throw std::runtime_error("the trial CAD session has no window");
}

std::vector<std::string> TrialCad::calls() const {
    std::istringstream stream(readFileBytes(journal()).value_or(""));
    std::vector<std::string> calls;
    for (std::string call; std::getline(stream, call);) calls.push_back(call);
    return calls;
}

int TrialCad::countOf(const std::string& text) const {
    const auto all = calls();
    return static_cast<int>(std::ranges::count_if(
        all, [&](const std::string& call) { return call.find(text) != std::string::npos; }));
}

}  // namespace driver
