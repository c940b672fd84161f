#include "startup/form2.h"

#include <gtest/gtest.h>

#include "fakes/fake_navigation.h"
#include "fakes/fake_platform.h"
#include "platform/runtime_error.h"
#include "selection/form1_ids.h"
#include "startup/form2_ids.h"
#include "startup/module1.h"
#include "startup/program.h"
#include "tracking/form3_ids.h"
#include "unit/raised.h"

namespace {

constexpr wchar_t kListFile[] = L"c:\\tarnwick\\tarnwick.lst";
using State = FakeWindow::State;

class ExistingListPrompt : public testing::Test {
 protected:
    ExistingListPrompt() {
        module.FichListe = kListFile;
        module.place(PlacedWindow::Form2) = {.top = 300, .left = -600};
        machine.files.texts[kListFile] = L"0  c:\\a\r\n";
    }

    void open() {
        form = std::make_unique<Form2>(module, machine.platform, navigation);
        form->Form_Load();
        window().show();
    }

    FakeWindow& window() { return machine.window(IDD_FORM2); }
    std::wstring saved(const wchar_t* key) {
        return machine.settings.read(L"tarnwick", L"startup", key, L"");
    }

    FakePlatform machine;
    FakeNavigation navigation;
    Module1 module;
    std::unique_ptr<Form2> form;
};

}  // namespace

TEST_F(ExistingListPrompt, EveryAnswerSavesThePlaceClosesThePromptAndGoesOn) {
    const CallJournal deletion = {
        L"create Scripting.FileSystemObject",
        L"Fso.DeleteFile(\"c:\\tarnwick\\tarnwick.lst\", True)",
    };
    const struct {
        int button;
        bool resumed;
        const wchar_t* next;
        CallJournal calls;
    } cases[] = {
        {IDC_FORM2_CMDOK, true, L"Form3", {}},
        {IDC_FORM2_CMDANNULE, false, L"Form1", {}},
        {IDC_FORM2_CMDEFFACER, false, L"Form1", deletion},
    };
    for (const auto& c : cases) {
        machine.settings.entries.clear();
        navigation.asked.clear();
        // Each answer overrides the one before.
        module.ReprendreListe = !c.resumed;
        module.NouvelleListe = c.resumed;
        open();
        EXPECT_EQ(window().topTwips, 300);
        EXPECT_EQ(window().leftTwips, -600);
        window().topTwips = 450;
        window().leftTwips = 75;
        navigation.whenAsked = [&] {
            EXPECT_EQ(saved(L"toppos2"), L"450");
            EXPECT_EQ(saved(L"leftpos2"), L"75");
            EXPECT_EQ(window().state, State::Unloaded);
            EXPECT_EQ(module.ReprendreListe, c.resumed);
            EXPECT_EQ(module.NouvelleListe, !c.resumed);
        };
        window().click(c.button);
        EXPECT_EQ(navigation.asked, std::vector<std::wstring>{c.next});
        EXPECT_EQ(machine.automation.takeJournal(), c.calls);
    }
    EXPECT_EQ(machine.automation.deletedFiles, std::vector<std::wstring>{kListFile});
    EXPECT_TRUE(machine.boxes.shown.empty());
}

TEST_F(ExistingListPrompt, ErasingAListThatHasVanishedFails) {
    open();
    machine.files.texts.clear();
    EXPECT_EQ(raised([&] { window().click(IDC_FORM2_CMDEFFACER); }), 53);
    EXPECT_EQ(window().state, State::Shown);
    EXPECT_TRUE(navigation.asked.empty());
    EXPECT_TRUE(machine.settings.entries.empty());
}

TEST_F(ExistingListPrompt, ClosingItEndsTheProgramAndSavesNothing) {
    open();
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_THROW(window().click(kEscapeKey), ProgramEnd);
    EXPECT_TRUE(machine.settings.entries.empty());
    EXPECT_FALSE(module.NouvelleListe || module.ReprendreListe);
}

TEST_F(ExistingListPrompt, YesResumesTheSavedPass) {
    machine.files.texts[kListFile] = L"1  c:\\a\r\n2  c:\\b\r\n0  c:\\c\r\n0  c:\\d\r\n";
    Program program(machine.platform);
    program.Main();
    window().click(IDC_FORM2_CMDOK);
    FakeWindow& tracking = machine.window(IDD_FORM3);
    EXPECT_EQ(tracking.state, State::Shown);
    EXPECT_EQ(tracking.control(IDC_FORM3_TXTETAT).content, L"c:\\c");
    // The states that were saved show: this is no first display.
    EXPECT_EQ(tracking.listBox(IDC_FORM3_LIST1).line(1), L"0002   Vu            c:\\b");
    EXPECT_FALSE(machine.windows.made.contains(IDD_FORM1));
}

TEST_F(ExistingListPrompt, NoKeepsTheListUntilAnotherIsLaunched) {
    machine.files.add(L"c:\\plans\\p.SLDDRW");
    Program program(machine.platform);
    program.Main();
    window().click(IDC_FORM2_CMDANNULE);
    FakeWindow& selection = machine.window(IDD_FORM1);
    EXPECT_EQ(selection.state, State::Shown);
    EXPECT_EQ(machine.files.texts[kListFile], L"0  c:\\a\r\n");
    selection.click(IDC_FORM1_CMD_INV);
    selection.click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(machine.files.texts[kListFile], L"0  c:\\plans\\p.SLDDRW\r\n");
}
