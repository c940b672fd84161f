#pragma once

#include <gtest/gtest.h>

#include "driver/app_driver.h"
#include "driver/expected_calls.h"
#include "driver/settings.h"
#include "driver/text.h"
#include "driver/trial_cad.h"
#include "driver/wait.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "searchfolders/configuration_ids.h"
#include "selection/selection_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {

using Lines = std::vector<std::string>;

constexpr const char* kSelection = "Mervale 2002 - Tarnwick";
constexpr const char* kPrompt = "Tarnwick  :  Message";
constexpr const char* kConfigurations =
    "Mervale 2002-2003     Gestion des répertoires de recherche";
constexpr const char* kTracking = "Tarnwick - suivi du travail -";

// What stands before the path of a line in the lists.
const std::string kToDo = "              ";
const std::string kChosen = " X   ";
const std::string kDone = " Fait          ";
const std::string kSeen = " Vu            ";
const std::string kInProgress = " EnCours  ";

/// What every scenario has at hand: a directory, fresh settings, the program and a trial CAD
/// session (neither is started yet). A scenario that fails reports all that can be seen of them.
class Scenario : public testing::Test {
 protected:
    Scenario();
    void TearDown() override;

    /// Adds documents to the sandbox and writes a list file of them, all to do.
    void writeListOf(const std::vector<std::string>& names);
    /// The list file of the documents in `paths`, with a code for each.
    std::string listOf(const std::vector<std::string>& codes) const;

    /// Starts the program on the list file there is and accepts it.
    void startAndResume();
    /// The same, with a list file of these documents, all to do, and a session with these options.
    void resume(const std::vector<std::string>& names, const std::vector<std::string>& cadOptions);
    /// The option by which a session plays what these lines say of documents.
    std::vector<std::string> saidOf(const std::string& documents) const;
    /// Starts the program where there is no list file, with the CAD session at work here.
    void startInDocuments(std::vector<std::string> cadOptions = {});

    /// Waits for the calls that the CAD session receives next, and compares them.
    void expectCalls(const calls::Calls& expected);
    /// Waits until the list file holds these bytes.
    void expectList(const std::string& bytes) const;
    /// Waits until a list box shows these lines.
    void expectLines(int list, const Lines& lines) const;
    /// Waits until this is the only window shown.
    void expectAlone(const char* caption) const;
    /// Exports the report to where the dialog proposes, and returns it.
    std::string exportReport() const;
    /// Waits for the document to be open, and for the end of the command that opened it.
    void waitUntilOpen(const std::string& path) const;
    /// Expects the box of a fatal error and the end of the program; returns the box's text.
    std::string expectFatalError(int number);
    /// Expects the program to end without a word, closed by its window's frame if one is named.
    void expectEnd(const char* closed = nullptr) const {
        if (closed) app.closeByFrame(closed);
        EXPECT_EQ(app.waitForExit(), 0);
    }

    Sandbox sandbox;
    Settings settings;
    TrialCad cad;
    AppDriver app;
    std::vector<std::string> paths;  ///< of the documents that writeListOf added

 private:
    size_t callsSeen_ = 0;
};

/// A line of the list file.
std::string listLine(const std::string& code, const std::string& path);

}  // namespace driver

using namespace driver;
