#pragma once

#include <string>
#include <vector>

#include "driver/app_driver.h"
#include "driver/sandbox.h"
#include "driver/trial_cad.h"

namespace driver::demo {

/// Where the demonstration is played: the program, a trial CAD session and sample documents. Each
/// step is printed on the standard output.
class Stage {
 public:
    explicit Stage(const std::filesystem::path& directory);

    /// Announces what comes next.
    void tell(const std::string& step) const;

    /// Presses a button and prints its caption.
    void press(int button) const;

    /// Waits for a call with this text among those not printed yet, and prints all up to it.
    void showCallsUpTo(const std::string& text);

    void showLines(int list) const;
    void showListFile() const;
    void showConfigurationFile() const;
    /// Waits for a file beside the program, and prints its text.
    void showFile(const std::string& name) const;

    /// Makes NAME.png, a picture of this window as it looks on the screen, and of what is visible
    /// of another one behind it.
    void picture(const std::string& name, HWND window, HWND behind = nullptr) const;

    Sandbox sandbox;
    std::vector<std::string> documents;
    TrialCad cad;
    AppDriver app;

 private:
    size_t callsShown_ = 0;
};

}  // namespace driver::demo
