#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cad/cad_session.h"
#include "fakes/fake_platform.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"

/// The tracking window on a machine in memory, driven by its controls' events.
class TrackingFixture : public testing::Test {
 protected:
    TrackingFixture();

    /// Loads the window over a list file with this text. What that called stays in the journal.
    void load(const std::wstring& listFile,
              TrackingWindow::Origin origin = TrackingWindow::Origin::Resumed);

    /// Loads the window as a next run would: with the list file and the marks kept as they are.
    void start(TrackingWindow::Origin origin = TrackingWindow::Origin::Resumed);

    /// Loads a list of the documents c:\a, c:\b … whose states are these one-character codes, and
    /// forgets the calls.
    void loadStates(const std::wstring& codes);

    void click(int id) { window().click(id); }
    FakeWindow& window() { return machine.window(IDD_FORM3); }
    FakeListBox& list() { return window().listBox(IDC_FORM3_LIST1); }
    std::wstring text(int id) { return window().control(id).content; }
    CallJournal takeCalls() { return machine.automation.takeJournal(); }

    /// The pointer, the number shown of how many, and the document.
    std::wstring shown();
    /// All states, separated by blanks.
    std::wstring states();
    /// Whether the six advance buttons are enabled; they must be alike.
    bool canAdvance();
    /// Whether the two step-back buttons are enabled; they must be alike.
    bool canStepBack();

    const WorkList& work() { return form->pass().list(); }
    std::wstring& listFile() { return machine.files.texts[machine.programFiles.list]; }

    CadSession& cad() { return *session; }

    FakePlatform machine;
    std::optional<CadSession> session;
    std::unique_ptr<TrackingWindow> form;

 private:
    bool enabledAlike(const std::vector<int>& buttons);
};
