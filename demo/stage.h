#pragma once

#include <string>
#include <vector>

#include "driver/app_driver.h"
#include "driver/sandbox.h"
#include "driver/trial_cad.h"

namespace driver::demo {

/// Where the demonstration is played: the program, a trial CAD session and sample documents. All
/// that happens is told on the standard output.
class Stage {
 public:
    explicit Stage(const std::filesystem::path& directory);

    /// Announces what comes next.
    void tell(const std::string& step) const;

    /// Presses a button and tells its caption.
    void press(int button) const;

    /// Waits for a call that holds this text among those not shown yet, and shows all up to it.
    void showCallsUpTo(const std::string& text);

    void showLines(int list) const;
    void showListFile() const;
    void showConfigurationFile() const;
    /// Waits for a file beside the program, and shows its text.
    void showFile(const std::string& name) const;

    /// Leaves NAME.png with this window as it looks on the screen; of another one what is seen
    /// behind and beside it.
    void picture(const std::string& name, HWND window, HWND behind = nullptr) const;

    Sandbox sandbox;
    std::vector<std::string> documents;
    TrialCad cad;
    AppDriver app;

 private:
    size_t callsShown_ = 0;
};

}  // namespace driver::demo
