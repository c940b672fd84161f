#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "driver/app_driver.h"
#include "driver/expected_calls.h"
#include "driver/sandbox.h"
#include "driver/settings.h"
#include "driver/trial_cad.h"

namespace driver {

/// What every scenario has at hand: a directory, fresh settings, the program and a trial CAD
/// session (neither is started yet). A scenario that fails reports all that can be seen of them.
class Scenario : public testing::Test {
 protected:
    Scenario();
    void TearDown() override;

    /// Starts the program on the list file there is and accepts it.
    void StartAndResume();

    /// Waits for the calls that the CAD session receives next, and compares them.
    void ExpectCalls(const calls::Calls& expected);

    /// Waits until the list file holds these bytes.
    void ExpectList(const std::string& bytes) const;

    /// Expects the box of a fatal error and the end of the program; gives the box's text.
    std::string ExpectFatalError(int number);

    Sandbox sandbox;
    Settings settings;
    TrialCad cad;
    AppDriver app;

 private:
    calls::Calls NewCalls() const;

    size_t callsSeen_ = 0;
};

/// A line of the list file.
std::string ListLine(const std::string& code, const std::string& path);

}  // namespace driver
