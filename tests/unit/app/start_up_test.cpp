#include <gtest/gtest.h>

#include "about/about_ids.h"
#include "app/program.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"
#include "selection/selection_ids.h"

namespace {

/// Writes what is read into the journal of the calls.
struct JournalledSettings : FakeSettings {
    explicit JournalledSettings(CallJournal& calls) : journal(calls) {}
    CallJournal& journal;

    std::wstring read(const std::wstring& application, const std::wstring& section,
                      const std::wstring& key, const std::wstring& otherwise) override {
        journal.push_back(L"read " + application + L'/' + section + L'/' + key + L" or " +
                          otherwise);
        return FakeSettings::read(application, section, key, otherwise);
    }
};

class StartUp : public testing::Test {
 protected:
    StartUp() { machine.files.directories.insert(L"c:\\plans"); }

    void start() {
        Platform platform{machine.automation, settings,        machine.files,
                          machine.records,    machine.clock,   machine.boxes,
                          machine.desktop,    machine.windows, L"d:\\outils\\tarnwick"};
        program = std::make_unique<Program>(platform);
        program->start();
    }

    FakePlatform machine;
    JournalledSettings settings{machine.automation.journal};
    std::unique_ptr<Program> program;
};

const CallJournal kPlacesRead = {
    L"read tarnwick/startup/toppos or 1416",     L"read tarnwick/startup/leftpos or 2964",
    L"read tarnwick/startup/toppos2 or 1416",    L"read tarnwick/startup/leftpos2 or 2964",
    L"read tarnwick/startup/toppos3 or 1416",    L"read tarnwick/startup/leftpos3 or 2964",
    L"read mervale/listerepert/toppos4 or 1416", L"read mervale/listerepert/leftpos4 or 2964",
};

CallJournal operator+(CallJournal first, const CallJournal& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

TEST_F(StartUp, GoesThroughItsStepsInOrder) {
    start();
    EXPECT_EQ(machine.automation.journal,
              kPlacesRead + CallJournal({
                                L"attach SldWorks.Application",
                                L"RevisionNumber()",
                                L"GetCurrentWorkingDirectory()",
                                L"create Scripting.FileSystemObject",
                                L"Fso.fileExists(\"d:\\outils\\tarnwick\\tarnwick.lst\")",
                            }));
    EXPECT_TRUE(machine.boxes.shown.empty());
    EXPECT_EQ(machine.window(IDD_FORM1).state, FakeWindow::State::Shown);
    EXPECT_EQ(machine.window(IDD_ABOUT).state, FakeWindow::State::Unloaded);
}

TEST_F(StartUp, AsksAboutAnExistingListEvenAnEmptyOne) {
    machine.files.texts[L"d:\\outils\\tarnwick\\tarnwick.lst"] = L"";
    start();
    EXPECT_EQ(machine.window(IDD_FORM2).state, FakeWindow::State::Shown);
    EXPECT_EQ(machine.window(IDD_ABOUT).state, FakeWindow::State::Unloaded);
    EXPECT_FALSE(machine.windows.made.contains(IDD_FORM1));
}
