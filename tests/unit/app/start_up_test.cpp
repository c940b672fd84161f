#include <gtest/gtest.h>

#include "about/about_ids.h"
#include "app/program.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"
#include "selection/selection_ids.h"
#include "unit/raised.h"

namespace {

using State = FakeWindow::State;

class StartUp : public testing::Test {
 protected:
    StartUp() { machine.files.directories.insert(L"c:\\plans"); }

    FakeWindow& about() { return machine.window(IDD_ABOUT); }
    void askAbout() { machine.window(IDD_FORM1).click(IDC_FORM1_CMDAP); }

    FakePlatform machine;
    Program program{machine.platform};
};

}  // namespace

TEST_F(StartUp, GoesThroughItsStepsInOrder) {
    program.start();
    EXPECT_EQ(machine.automation.journal,
              (CallJournal{L"attach SldWorks.Application", L"RevisionNumber()",
                           L"GetCurrentWorkingDirectory()", L"create Scripting.FileSystemObject",
                           L"Fso.fileExists(\"c:\\tarnwick\\tarnwick.lst\")"}));
    EXPECT_EQ(machine.window(IDD_FORM1).state, State::Shown);
    EXPECT_EQ(about().state, State::Unloaded);
}

TEST_F(StartUp, ReadsThePlacesFirst) {
    machine.settings.write(L"mervale", L"listerepert", L"leftpos4", L"à gauche");
    EXPECT_EQ(raised([&] { program.start(); }), 13);
    EXPECT_EQ(about().state, State::Shown);
    EXPECT_EQ(machine.automation.journal, CallJournal());
}

TEST_F(StartUp, AsksAboutAnExistingListEvenAnEmptyOne) {
    machine.files.texts[machine.programFiles.list] = L"";
    program.start();
    EXPECT_EQ(machine.window(IDD_FORM2).state, State::Shown);
    EXPECT_EQ(about().state, State::Unloaded);
    EXPECT_FALSE(machine.windows.made.contains(IDD_FORM1));
}

TEST_F(StartUp, IsFollowedByTheAboutWindowAsOftenAsTheUserAsks) {
    program.start();
    const std::pair<int, Event> ways[] = {
        {kEnterKey, Event::Click}, {kEscapeKey, Event::Click}, {kTheWindow, Event::Close}};
    for (const auto& [id, event] : ways) {
        askAbout();
        EXPECT_EQ(about().topTwips, 0) << id << ": a closed window is not opened again";
        about().topTwips = 100;
        askAbout();
        EXPECT_EQ(about().topTwips, 100) << id << ": one window is enough";
        EXPECT_EQ(about().state, State::Shown) << id;
        about().sink.raise(id, event);
        EXPECT_EQ(about().state, State::Unloaded) << id;
    }
}
