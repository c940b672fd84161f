#include "resume/existing_list_window.h"

#include <gtest/gtest.h>

#include "common/runtime_error.h"
#include "fakes/fake_exits.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"

namespace {

using Texts = std::vector<std::wstring>;

class ExistingListPrompt : public testing::Test {
 protected:
    ExistingListPrompt() { machine.files.texts[machine.programFiles.list] = L"0  c:\\a\r\n"; }

    FakePlatform machine;
    FakeExits exits;
    FileSystemObject fileSystem{machine.automation};
    ExistingListWindow form{machine.windows, machine.places, fileSystem, machine.programFiles,
                            exits};
    FakeWindow& window = machine.window(IDD_FORM2);
};

}  // namespace

TEST_F(ExistingListPrompt, EveryAnswerSavesThePlaceClosesThePromptAndGoesOn) {
    exits.whenTaken = [&] {
        EXPECT_EQ(machine.settings.entries.size(), 2U);
        EXPECT_EQ(window.state, FakeWindow::State::Unloaded);
    };
    for (const int button : {IDC_FORM2_CMDOK, IDC_FORM2_CMDANNULE, IDC_FORM2_CMDEFFACER}) {
        machine.settings.entries.clear();
        window.show();
        window.click(button);
    }
    EXPECT_EQ(exits.taken, (Texts{L"resumePass", L"declineList", L"declineList"}));
    EXPECT_EQ(machine.automation.deletedFiles, Texts{machine.programFiles.list});
}

TEST_F(ExistingListPrompt, ClosingItEndsTheProgramAndSavesNothing) {
    EXPECT_THROW(window.close(), ProgramEnd);
    EXPECT_THROW(window.click(kEscapeKey), ProgramEnd);
    EXPECT_TRUE(machine.settings.entries.empty());
    EXPECT_TRUE(exits.taken.empty());
}
