#include <gtest/gtest.h>

#include "about/about_ids.h"
#include "app/program.h"
#include "fakes/fake_platform.h"
#include "selection/selection_ids.h"

namespace {

using State = FakeWindow::State;

class AboutWindowTest : public testing::Test {
 protected:
    AboutWindowTest() { machine.files.directories.insert(L"c:\\plans"); }

    FakeWindow& about() { return machine.window(IDD_ABOUT); }
    void ask() { machine.window(IDD_FORM1).click(IDC_FORM1_CMDAP); }

    FakePlatform machine;
    Program program{machine.platform};
};

}  // namespace

TEST_F(AboutWindowTest, ClosesByEnterEscapeOrItsFrameAndOpensAgain) {
    program.start();
    const std::pair<int, Event> ways[] = {
        {kEnterKey, Event::Click}, {kEscapeKey, Event::Click}, {kTheWindow, Event::Close}};
    for (const auto& [id, event] : ways) {
        ask();
        EXPECT_EQ(about().state, State::Shown) << id;
        EXPECT_EQ(about().topTwips, 0) << id << ": a closed window is not opened again";
        about().topTwips = 100;
        ask();
        EXPECT_EQ(about().state, State::Shown) << id;
        about().sink.raise(id, event);
        EXPECT_EQ(about().state, State::Unloaded) << id;
    }
    EXPECT_EQ(machine.window(IDD_FORM1).state, State::Shown);
}
