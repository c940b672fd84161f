#include "about/about_ids.h"
#include "app/program.h"
#include "fakes/fake_platform.h"
#include "resume/existing_list_ids.h"
#include "selection/selection_ids.h"
#include "unit/unit_test.h"

using State = FakeWindow::State;

struct StartUp : testing::Test {
    StartUp() { machine.files.directories.insert(L"c:\\plans"); }

    FakeWindow& about() { return machine.window(IDD_ABOUT); }
    FakeWindow& selection() { return machine.window(IDD_FORM1); }

    /// The error of a start with these files named on the command line.
    RuntimeError failure(const Texts& namedFiles = {}) {
        machine.platform.namedFiles = namedFiles;
        return raisedError([&] { Program(machine.platform).start(); });
    }

    FakePlatform machine;
    Program program{machine.platform};
};

TEST_F(StartUp, GoesThroughItsStepsInOrder) {
    program.start();
    EXPECT_EQ(machine.automation.journal,
              (CallJournal{L"attach SldWorks.Application", L"RevisionNumber()",
                           L"GetCurrentWorkingDirectory()", L"create Scripting.FileSystemObject"}));
    EXPECT_EQ(machine.listHolds.asked, Texts{L"c:\\tarnwick\\tarnwick.verrou"});
    EXPECT_EQ(selection().state, State::Shown);
    EXPECT_EQ(about().state, State::Unloaded);
}

TEST_F(StartUp, ReadsThePlacesFirst) {
    machine.settings.write(L"mervale", L"listerepert", L"leftpos4", L"à gauche");
    EXPECT_EQ(raisedError([&] { program.start(); }).text,
              L"Incompatibilité de type : un nombre était attendu au lieu de \"à gauche\".\r\n"
              L"Réglage : HKEY_CURRENT_USER\\Software\\mervale\\listerepert\\leftpos4");
    EXPECT_EQ(about().state, State::Shown);
    EXPECT_EQ(machine.automation.journal, CallJournal());
}

TEST_F(StartUp, AsksAboutAnExistingListEvenAnEmptyOne) {
    machine.files.texts[machine.programFiles.list] = L"";
    program.start();
    EXPECT_EQ(machine.window(IDD_FORM2).state, State::Shown);
    EXPECT_EQ(about().state, State::Unloaded);
    EXPECT_FALSE(machine.windows.made.contains(IDD_FORM1));
    // A list that can't be looked for counts as none.
    machine.files.failing[machine.programFiles.list] = 2;
    EXPECT_EQ(failure({machine.programFiles.list}).number, 0);
    EXPECT_TRUE(machine.windows.made.contains(IDD_FORM1));
    machine.window(IDD_FORM2).click(IDC_FORM2_CMDANNULE);
    EXPECT_EQ(selection().state, State::Shown);
    EXPECT_THROW(selection().click(IDC_FORM1_CMD_TRACER), ProgramEnd);
}

TEST_F(StartUp, IsFollowedByTheAboutWindowAsOftenAsTheUserAsks) {
    program.start();
    const std::pair<int, Event> ways[] = {
        {kEnterKey, Event::Click}, {kEscapeKey, Event::Click}, {kTheWindow, Event::Close}};
    for (const auto& [id, event] : ways) {
        selection().click(IDC_FORM1_CMDAP);
        EXPECT_EQ(about().area.top, 0) << id << ": a closed window is not opened again";
        about().leaveAt(0, 100);
        selection().click(IDC_FORM1_CMDAP);
        EXPECT_EQ(about().area.top, 100) << id << ": one window is enough";
        EXPECT_EQ(about().state, State::Shown) << id;
        about().sink.raise(id, event);
        EXPECT_EQ(about().state, State::Unloaded) << id;
    }
}

TEST_F(StartUp, WorksOnTheListThatTheCommandLineNames) {
    const std::wstring list = L"c:\\été 2026.lst\\Liste 1.LST";
    machine.files.texts[list] = L"";
    EXPECT_EQ(failure({list}).text, L"");
    EXPECT_EQ(machine.listHolds.asked, Texts{L"c:\\été 2026.lst\\Liste 1.verrou"});
    EXPECT_TRUE(machine.windows.made.contains(IDD_FORM2));
    for (const wchar_t* other : {L"c:\\été 2026.lst", L"c:\\a.lst\\b.txt", L"c:\\alst", L"c:\\",
                                 L"c:\\a.txt:b.lst", L"", L"c:\\*.lst", L"\\\\.\\NUL", L"absent"}) {
        const RuntimeError error = failure({other});
        EXPECT_EQ(error.number, 5) << other;
        EXPECT_TRUE(error.text.ends_with(other)) << error.text;
    }
    const RuntimeError two = failure({L"c:\\a.lst", L"c:\\b.lst"});
    EXPECT_EQ(two.number, 5);
    EXPECT_TRUE(two.text.ends_with(L"\r\nc:\\a.lst\r\nc:\\b.lst")) << two.text;
}

TEST_F(StartUp, EndsBeforeAllElseWhenTheListIsOpenAlready) {
    using Kind = HoldAnswer::Kind;
    machine.listHolds.answer = {Kind::RaisedOther};
    EXPECT_THROW(program.start(), ProgramEnd);
    machine.listHolds.answer = {Kind::HeldElsewhere, {L"Zoé", L"PC-12"}};
    EXPECT_EQ(failure().text,
              L"La liste c:\\tarnwick\\tarnwick.lst est déjà ouverte par Zoé sur PC-12.");
    machine.listHolds.answer.holder = {};
    EXPECT_EQ(failure().number, 70);
    EXPECT_TRUE(machine.windows.made.empty());
    EXPECT_TRUE(machine.automation.journal.empty());

    machine.listHolds.answer = {.hidden = true};
    program.start();
    EXPECT_EQ(machine.boxes.takeTexts().size(), 1U) << "that others can't be told";
    EXPECT_EQ(selection().state, State::Shown);
}

TEST_F(StartUp, WithoutCadSessionShowsOneBoxAndEnds) {
    machine.automation.attaching = call_result::failure(0x800401E3);  // MK_E_UNAVAILABLE
    EXPECT_THROW(program.start(), ProgramEnd);
    EXPECT_EQ(
        machine.boxes.shown,
        std::vector{(MessageBoxContent{.text = L" Une session SolidWorks doit être ouverte  \r\n"
                                               L"   pour que Tarnwick puisse démarrer.",
                                       .title = L"Tarnwick by Mervale"})});
}

TEST(Guide, IsAskedForOnlyWhereItsPageStands) {
    const std::tuple<const wchar_t*, bool, std::size_t> cases[] = {
        {L"guide.html", true, 0}, {L"guide.html", false, 1}, {L"guide.html.exe", true, 1}};
    for (const auto& [beside, browser, boxes] : cases) {
        FakePlatform machine;
        machine.files.add({L"c:\\tarnwick\\" + std::wstring(beside)});
        if (browser) machine.desktop.openable = L"c:\\tarnwick\\guide.html";
        showGuide(machine.files, machine.desktop, machine.boxes, L"c:\\tarnwick");
        EXPECT_EQ(machine.boxes.shown.size(), boxes) << beside << browser;
    }
}
