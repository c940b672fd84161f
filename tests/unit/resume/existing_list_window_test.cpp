#include "resume/existing_list_window.h"

#include <gtest/gtest.h>

#include "common/runtime_error.h"
#include "fakes/fake_exits.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"

namespace {

constexpr wchar_t kListFile[] = L"c:\\tarnwick\\tarnwick.lst";
using State = FakeWindow::State;

class ExistingListPrompt : public testing::Test {
 protected:
    ExistingListPrompt() {
        machine.leaveWindowAt(L"toppos2", L"leftpos2", 300, -600);
        machine.files.texts[kListFile] = L"0  c:\\a\r\n";
    }

    void open() {
        form = std::make_unique<ExistingListWindow>(machine.windows, machine.places, fileSystem,
                                                    machine.programFiles, exits);
        form->Form_Load();
        window().show();
    }

    FakeWindow& window() { return machine.window(IDD_FORM2); }

    FakePlatform machine;
    FakeExits exits;
    FileSystemObject fileSystem{machine.automation};
    std::unique_ptr<ExistingListWindow> form;
};

}  // namespace

TEST_F(ExistingListPrompt, EveryAnswerSavesThePlaceClosesThePromptAndGoesOn) {
    const struct {
        int button;
        const wchar_t* next;
    } cases[] = {
        {IDC_FORM2_CMDOK, L"resumePass"},
        {IDC_FORM2_CMDANNULE, L"declineList"},
        {IDC_FORM2_CMDEFFACER, L"declineList"},
    };
    for (const auto& c : cases) {
        machine.settings.entries.clear();
        exits.taken.clear();
        open();
        exits.whenTaken = [&] {
            EXPECT_EQ(machine.settings.entries.size(), 2U);
            EXPECT_EQ(window().state, State::Unloaded);
        };
        window().click(c.button);
        EXPECT_EQ(exits.taken, std::vector<std::wstring>{c.next});
    }
    EXPECT_EQ(machine.automation.deletedFiles, std::vector<std::wstring>{kListFile});
}

TEST_F(ExistingListPrompt, ClosingItEndsTheProgramAndSavesNothing) {
    open();
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_THROW(window().click(kEscapeKey), ProgramEnd);
    EXPECT_TRUE(machine.settings.entries.empty());
    EXPECT_TRUE(exits.taken.empty());
}
