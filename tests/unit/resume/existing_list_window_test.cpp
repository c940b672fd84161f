#include "resume/existing_list_window.h"

#include <gtest/gtest.h>

#include "app/module1.h"
#include "common/runtime_error.h"
#include "fakes/fake_navigation.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"

namespace {

constexpr wchar_t kListFile[] = L"c:\\tarnwick\\tarnwick.lst";
using State = FakeWindow::State;

class ExistingListPrompt : public testing::Test {
 protected:
    ExistingListPrompt() {
        module.FichListe = kListFile;
        module.place(PlacedWindow::ExistingList) = {.top = 300, .left = -600};
        machine.files.texts[kListFile] = L"0  c:\\a\r\n";
    }

    void open() {
        form = std::make_unique<ExistingListWindow>(module, machine.platform, navigation);
        form->Form_Load();
        window().show();
    }

    FakeWindow& window() { return machine.window(IDD_FORM2); }

    FakePlatform machine;
    FakeNavigation navigation;
    Module1 module;
    std::unique_ptr<ExistingListWindow> form;
};

}  // namespace

TEST_F(ExistingListPrompt, EveryAnswerSavesThePlaceClosesThePromptAndGoesOn) {
    const struct {
        int button;
        bool resumed;
        const wchar_t* next;
    } cases[] = {
        {IDC_FORM2_CMDOK, true, L"TrackingWindow"},
        {IDC_FORM2_CMDANNULE, false, L"SelectionWindow"},
        {IDC_FORM2_CMDEFFACER, false, L"SelectionWindow"},
    };
    for (const auto& c : cases) {
        machine.settings.entries.clear();
        navigation.asked.clear();
        // Each answer overrides the one before.
        module.ReprendreListe = !c.resumed;
        module.NouvelleListe = c.resumed;
        open();
        navigation.whenAsked = [&] {
            EXPECT_EQ(machine.settings.entries.size(), 2U);
            EXPECT_EQ(window().state, State::Unloaded);
            EXPECT_EQ(module.ReprendreListe, c.resumed);
            EXPECT_EQ(module.NouvelleListe, !c.resumed);
        };
        window().click(c.button);
        EXPECT_EQ(navigation.asked, std::vector<std::wstring>{c.next});
    }
    EXPECT_EQ(machine.automation.deletedFiles, std::vector<std::wstring>{kListFile});
}

TEST_F(ExistingListPrompt, ClosingItEndsTheProgramAndSavesNothing) {
    open();
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_THROW(window().click(kEscapeKey), ProgramEnd);
    EXPECT_TRUE(machine.settings.entries.empty());
    EXPECT_FALSE(module.NouvelleListe || module.ReprendreListe);
}
