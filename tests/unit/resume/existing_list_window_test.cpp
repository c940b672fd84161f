#include "resume/existing_list_window.h"

#include "fakes/fake_exits.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"
#include "unit/unit_test.h"

struct ExistingListPrompt : testing::Test {
    ExistingListPrompt() { machine.files.texts[machine.programFiles.list] = L"0  c:\\a\r\n"; }

    FakePlatform machine;
    FakeExits exits;
    ExistingListWindow form{machine.platform, machine.places, machine.programFiles, exits};
    FakeWindow& window = machine.window(IDD_FORM2);
};

TEST_F(ExistingListPrompt, EveryAnswerSavesThePlaceAndGoesOnAndClosingItEndsTheProgram) {
    EXPECT_THROW(window.close(), ProgramEnd);
    EXPECT_THROW(window.click(kEscapeKey), ProgramEnd);
    EXPECT_TRUE(machine.settings.entries.empty() && exits.taken.empty());
    exits.whenTaken = [&] {
        EXPECT_EQ(machine.settings.entries.size(), 3U);
        EXPECT_EQ(window.state, FakeWindow::State::Unloaded);
    };
    for (const int button : {IDC_FORM2_CMDOK, IDC_FORM2_CMDANNULE, IDC_FORM2_CMDEFFACER}) {
        machine.settings.entries.clear();
        window.show();
        window.click(button);
    }
    EXPECT_EQ(exits.taken, (Texts{L"resumePass", L"declineList", L"declineList"}));
}

TEST_F(ExistingListPrompt, AnErasedListStaysAsThePreviousOneUnlessItHadNoLine) {
    const std::wstring& list = machine.programFiles.list;
    const std::wstring previous = machine.programFiles.previousList();
    auto& files = machine.files.texts;
    files[previous] = L"0  c:\\d'avant\r\n";
    files[L"c:\\tarnwick\\tarnwick.reprise"] = L"Fait";
    const auto before = files;
    machine.files.failing[list] = 2;
    machine.files.wellFor = 1;
    EXPECT_EQ(raised([&] { window.click(IDC_FORM2_CMDEFFACER); }), 75);
    EXPECT_EQ(files, before);
    machine.files.failing.clear();
    machine.listHolds.others[previous];
    window.click(IDC_FORM2_CMDEFFACER);
    EXPECT_EQ(files, before);
    EXPECT_EQ(machine.boxes.shown.size(), 1U);
    EXPECT_NE(window.state, FakeWindow::State::Unloaded);

    machine.listHolds.others.clear();
    window.click(IDC_FORM2_CMDEFFACER);
    const std::map<std::wstring, std::wstring> left = {
        {previous, before.at(list)}, {L"c:\\tarnwick\\tarnwick-precedente.reprise", L"Fait"}};
    EXPECT_EQ(files, left);
    files[list] = L"";
    window.click(IDC_FORM2_CMDEFFACER);
    EXPECT_EQ(files, left);
    EXPECT_EQ(raised([&] { window.click(IDC_FORM2_CMDEFFACER); }), 53);
}
