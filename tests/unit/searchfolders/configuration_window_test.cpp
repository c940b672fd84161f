#include "searchfolders/configuration_window.h"

#include "cad/cad_session.h"
#include "fakes/fake_platform.h"
#include "searchfolders/configuration_ids.h"
#include "unit/unit_test.h"

constexpr auto kTwo =
    L"Configuration:  A\r\n   c:\\a\r\nConfiguration:  B\r\n   c:\\b\r\n   d:\\b\r\n";

struct ConfigurationFixture : testing::Test {
    ConfigurationFixture() {
        cad.attach(machine.automation);
        machine.files.directories = {L"c:\\tarnwick", L"c:\\p\\1\\x", L"c:\\p\\2"};
        machine.files.presentDrives = {L'c', L'd'};
        machine.files.unreadable = {L"d:"};
        machine.automation.searchFolders = L"s:\\1;s:\\2";
        machine.settings.write(L"mervale", L"listerepert", L"toppos4", L"300");
        file = kTwo;
        form.Form_Load();
        machine.automation.takeJournal();
    }

    void click(int id) { window.click(id); }
    void press(const std::vector<int>& ids) {
        for (const int id : ids) click(id);
    }
    /// Where a drive is opened.
    void openP() {
        machine.files.currentDirectories[L'c'] = L"c:\\p";
        chooseDrive(0);
    }
    FakeListBox& list(int id) { return window.listBox(id); }
    std::wstring& text(int id) { return window.control(id).content; }
    void choose(int line) {
        list(IDC_FORM4_LIST1).clearSelection();
        list(IDC_FORM4_LIST1).select(line, true);
        click(IDC_FORM4_LIST1);
    }
    void chooseDrive(int line) {
        window.comboBox(IDC_FORM4_DRIVE1).chosen = line;
        click(IDC_FORM4_DRIVE1);
    }
    bool editing() { return window.control(IDC_FORM4_FRATAB1).visible; }

    FakePlatform machine;
    std::wstring& file = machine.files.texts[machine.programFiles.configurations];
    CadSession cad{machine.desktop};
    FileSystemObject fileSystem{machine.automation};
    Configurations configurations;
    ConfigurationWindow form{machine.platform, machine.places,       cad,
                             fileSystem,       machine.programFiles, configurations};
    FakeWindow& window = machine.window(IDD_FORM4);
};

TEST_F(ConfigurationFixture, OpensOnTheLastConfigurationAndAsksForTheFoldersInForceAtEachClick) {
    EXPECT_EQ(window.area, (Area{198, 20, 198 + 907, 20 + 413}));
    EXPECT_EQ(list(IDC_FORM4_LIST1).texts(), (Texts{L"En Cours", L"A", L"B"}));
    EXPECT_EQ(list(IDC_FORM4_LIST1).selection(), std::vector{2});
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), (Texts{L"c:\\b", L"d:\\b"}));
    EXPECT_EQ(text(IDC_FORM4_CPT_REP) + text(IDC_FORM4_NNIV), L"00");
    EXPECT_FALSE(editing());
    chooseDrive(1);  // which is not ready
    EXPECT_EQ(machine.boxes.shown.size(), 1U);
    EXPECT_EQ(window.comboBox(IDC_FORM4_DRIVE1).chosen, 0);
    EXPECT_EQ(list(IDC_FORM4_DIR1).line(1), L"  tarnwick");
    machine.automation.searchFolders = L"s:\\3";
    choose(1);
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), Texts{L"c:\\a"});
    choose(0);
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), Texts{L"s:\\3"});
    EXPECT_EQ(machine.automation.takeJournal(), CallJournal{L"GetSearchFolders(0:i4)"});
}

TEST_F(ConfigurationFixture, AppliesTheSelectedConfigurationAndTellsTheOutcome) {
    click(IDC_FORM4_CMDCHOISIR);
    machine.automation.setSearchFoldersResult = std::int32_t{1};
    list(IDC_FORM4_LIST1).clearSelection();
    click(IDC_FORM4_CMDCHOISIR);
    EXPECT_EQ(machine.automation.takeJournal(),
              (CallJournal{L"setsearchfolders(0:i4, &\"c:\\b;d:\\b\")",
                           L"setsearchfolders(0:i4, &\"s:\\1;s:\\2\")"}));
    const MessageBoxContent& success = machine.boxes.shown.at(0);
    const MessageBoxContent& failure = machine.boxes.shown.at(1);
    EXPECT_EQ(success.title, L"Réglages SOLIDWORKS réussie");
    EXPECT_EQ(success.icon, MessageBoxContent::Icon::None);
    EXPECT_EQ(failure.title, L"Echec du Réglage SOLIDWORKS");
    EXPECT_EQ(failure.icon, MessageBoxContent::Icon::Stop);
    EXPECT_EQ(failure.defaultButton, 2);
}

TEST_F(ConfigurationFixture, AddsATreeInThePickersOrderAndPassesOverLoops) {
    machine.files.links[L"c:\\p\\1\\retour"] = L"c:\\p";
    click(IDC_FORM4_CMDCREER);
    EXPECT_TRUE(editing());
    openP();
    const Texts picker = list(IDC_FORM4_DIR1).texts();
    press({IDC_FORM4_CMDAJO2, IDC_FORM4_CMDAJO1});
    EXPECT_EQ(list(IDC_FORM4_LIST2).texts(),
              (Texts{L"c:\\p", L"c:\\p\\1", L"c:\\p\\1\\x", L"c:\\p\\2"}));
    EXPECT_EQ(text(IDC_FORM4_CPT_REP), L"4");
    EXPECT_EQ(list(IDC_FORM4_DIR1).texts(), picker) << "the picker ends where it began";

    click(IDC_FORM4_CMDPLUS1);
    EXPECT_EQ(list(IDC_FORM4_LIST2).line(2), L"c:\\..\\1\\x");
    list(IDC_FORM4_LIST2).select(1, true);
    press({IDC_FORM4_CMDRETIR2, IDC_FORM4_CMDMOINS1});
    EXPECT_EQ(list(IDC_FORM4_LIST2).texts(), (Texts{L"c:\\p", L"c:\\p\\2"}));

    text(IDC_FORM4_NOMDELACONF) = L"";
    click(IDC_FORM4_CMDVALIDER);
    EXPECT_FALSE(editing());
    EXPECT_EQ(list(IDC_FORM4_LIST1).texts(), (Texts{L"En Cours", L"A", L"B", L"Defaut_3"}));
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), (Texts{L"c:\\p", L"c:\\p\\2"}));
    EXPECT_TRUE(machine.automation.takeJournal().empty());
}

TEST_F(ConfigurationFixture, AddsNothingOfATreeThatIsStoppedOrCantBeRead) {
    choose(1);
    click(IDC_FORM4_CMDMODIFIER);
    openP();
    machine.serveAfter(L"c:\\p\\1", [&] { return machine.watch.stop(); });
    click(IDC_FORM4_CMDAJO2);
    machine.files.beforeEach = [](const auto&) {};
    machine.files.unreadable = {L"c:\\p\\2"};
    click(IDC_FORM4_CMDAJO2);
    const Texts told = machine.boxes.takeTexts();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0], L"Recherche interrompue : rien n'a été ajouté.");
    EXPECT_TRUE(told[1].starts_with(L"Ce répertoire")) << told[1];
    EXPECT_EQ(text(IDC_FORM4_CPT_REP) + configurations.edited[2], L"1");
    machine.files.unreadable.clear();
    for (int i = 0; i < 200; ++i) machine.files.directories.insert(L"c:\\p\\" + std::to_wstring(i));
    EXPECT_EQ(raised([&] { click(IDC_FORM4_CMDAJO2); }), 9);
}

TEST_F(ConfigurationFixture, LeavesOutDirectoriesThatAListOfFoldersCantHold) {
    machine.files.directories = {L"c:\\p\\1;2\\x", L"c:\\p\\3"};
    click(IDC_FORM4_CMDCREER);
    openP();
    click(IDC_FORM4_CMDAJO2);
    EXPECT_EQ(list(IDC_FORM4_LIST2).texts(), (Texts{L"c:\\p", L"c:\\p\\3"}));
    ASSERT_EQ(machine.boxes.shown.size(), 1U);
    EXPECT_TRUE(machine.boxes.shown[0].text.ends_with(L"\r\nc:\\p\\1;2\r\nc:\\p\\1;2\\x"));
    list(IDC_FORM4_DIR1).clearSelection();
    list(IDC_FORM4_DIR1).select(2, true);
    window.sink.raise(IDC_FORM4_DIR1, Event::DoubleClick);
    click(IDC_FORM4_CMDAJO1);
    EXPECT_EQ(text(IDC_FORM4_CPT_REP), L"2");
    EXPECT_EQ(machine.boxes.shown.size(), 2U);
}

TEST_F(ConfigurationFixture, ModifyingTheFoldersInForceAppliesThemAtOnceUnlessItIsGivenUp) {
    choose(0);
    for (const int button : {IDC_FORM4_CMDANNULER1, IDC_FORM4_CMDVALIDER}) {
        click(IDC_FORM4_CMDMODIFIER);
        EXPECT_EQ(text(IDC_FORM4_NOMDELACONF), L"En Cours");
        list(IDC_FORM4_LIST2).select(0, true);
        click(IDC_FORM4_CMDRETIR1);
        click(button);
        EXPECT_FALSE(editing());
    }
    EXPECT_EQ(machine.automation.takeJournal().back(), L"setsearchfolders(0:i4, &\"s:\\2\")");
    EXPECT_EQ(configurations.last, 2);
    window.leaveAt(1, 6'000);
    click(IDC_FORM4_CMDANNULER);
    EXPECT_EQ(machine.settings.read(L"mervale", L"listerepert", L"leftpos4", L""), L"15");
}

TEST_F(ConfigurationFixture, OnlySauvegarderWritesTheFile) {
    choose(1);
    click(IDC_FORM4_CMDRENOMMER);
    text(IDC_FORM4_NOMDELACONF) = L"Z";
    click(IDC_FORM4_CMDVALIDER);
    choose(2);
    click(IDC_FORM4_CMDDETRUIRE);
    EXPECT_EQ(file, kTwo);
    click(IDC_FORM4_CMDENREGISTER);
    EXPECT_EQ(file, L"Configuration:  Z\r\n   c:\\a\r\n");
    // Looked for, or written, in vain once: it is as it was.
    const std::wstring before = file;
    configurations.rows[1][0] = L"Y";
    for (int wellFor = 0; wellFor < 3; ++wellFor) {
        machine.files.wellFor = wellFor;
        int& failing = machine.files.failing[machine.programFiles.configurations] = 1;
        const int error = raised([&] { click(IDC_FORM4_CMDENREGISTER); });
        EXPECT_EQ(error, failing == 0 ? 75 : 0) << wellFor;
        EXPECT_EQ(file == before, failing == 0) << wellFor;
    }
    machine.files.failing.clear();
    // Another Tarnwick's is kept, and one that was out of reach when it was to be read.
    std::wstring& kept = machine.files.texts[L"c:\\tarnwick\\tarnwick-precedente.cfg"];
    for (const bool reached : {true, false}) {
        file = kTwo;
        machine.automation.fileExists = [](const auto&) { return false; };
        if (!reached) form.Form_Load();
        EXPECT_EQ(configurations.last, reached ? 1 : 0);
        click(IDC_FORM4_CMDENREGISTER);
        EXPECT_EQ(file, reached ? L"Configuration:  Y\r\n   c:\\a\r\n" : L"");
        EXPECT_EQ(std::exchange(kept, L""), kTwo);
    }
    EXPECT_EQ(machine.boxes.takeTexts().size(), 2U);
}
