#include "searchfolders/configuration_window.h"

#include <gtest/gtest.h>

#include "cad/cad_session.h"
#include "common/runtime_error.h"
#include "fakes/fake_platform.h"
#include "searchfolders/configuration_ids.h"

namespace {

using Texts = std::vector<std::wstring>;

class ConfigurationFixture : public testing::Test {
 protected:
    ConfigurationFixture() {
        cad.attach(machine.automation);
        machine.files.directories = {L"c:\\tarnwick", L"c:\\p\\1\\x", L"c:\\p\\2"};
        machine.automation.searchFolders = L"s:\\1;s:\\2";
    }

    void open(const wchar_t* file) {
        machine.files.texts[machine.programFiles.configurations] = file;
        form =
            std::make_unique<ConfigurationWindow>(machine.platform, machine.places, cad, fileSystem,
                                                  machine.programFiles, configurations);
        list(IDC_FORM4_LIST1).severalSelectable = false;
        form->Form_Load();
        machine.automation.takeJournal();
    }

    FakeWindow& window() { return machine.window(IDD_FORM4); }
    FakeListBox& list(int id) { return window().listBox(id); }
    std::wstring text(int id) { return window().control(id).content; }
    void select(int id, int line) { list(id).select(line, true); }
    void choose(int line) {
        select(IDC_FORM4_LIST1, line);
        window().click(IDC_FORM4_LIST1);
    }
    void openDirectory(const wchar_t* path) {
        // As the user would: the current directory of the drive is where a drive opens.
        machine.files.currentDirectories[L'c'] = path;
        window().comboBox(IDC_FORM4_DRIVE1).chosen = 0;
        window().click(IDC_FORM4_DRIVE1);
    }
    bool editing() { return window().control(IDC_FORM4_FRATAB1).visible; }

    FakePlatform machine;
    CadSession cad{machine.desktop};
    FileSystemObject fileSystem{machine.automation};
    Configurations configurations;
    std::unique_ptr<ConfigurationWindow> form;
};

constexpr auto kTwo =
    L"Configuration:  A\r\n   c:\\a\r\nConfiguration:  B\r\n   c:\\b\r\n   d:\\b\r\n";

TEST_F(ConfigurationFixture, OpensOnTheLastConfiguration) {
    machine.settings.write(L"mervale", L"listerepert", L"toppos4", L"300");
    open(kTwo);
    EXPECT_EQ(std::tie(window().widthTwips, window().heightTwips), std::tuple(13600, 6200));
    EXPECT_EQ(std::tie(window().topTwips, window().leftTwips), std::tuple(300, 2964));
    EXPECT_EQ(list(IDC_FORM4_LIST1).texts(), (Texts{L"En Cours", L"A", L"B"}));
    EXPECT_EQ(list(IDC_FORM4_LIST1).selection(), std::vector{2});
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), (Texts{L"c:\\b", L"d:\\b"}));
    EXPECT_EQ(text(IDC_FORM4_CPT_REP) + text(IDC_FORM4_NNIV), L"00");
    EXPECT_FALSE(editing());
}

TEST_F(ConfigurationFixture, AsksForTheFoldersInForceAtEachClickOnThem) {
    open(kTwo);
    machine.automation.searchFolders = L"s:\\3";
    choose(1);
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), Texts{L"c:\\a"});
    choose(0);
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), Texts{L"s:\\3"});
    EXPECT_EQ(machine.automation.takeJournal(), CallJournal{L"GetSearchFolders(0:i4)"});
}

TEST_F(ConfigurationFixture, AppliesTheSelectedConfigurationAndTellsTheOutcome) {
    open(kTwo);
    window().click(IDC_FORM4_CMDCHOISIR);
    machine.automation.setSearchFoldersResult = std::int32_t{1};
    list(IDC_FORM4_LIST1).clearSelection();
    window().click(IDC_FORM4_CMDCHOISIR);
    EXPECT_EQ(machine.automation.takeJournal(),
              (CallJournal{L"setsearchfolders(0:i4, &\"c:\\b;d:\\b\")",
                           L"setsearchfolders(0:i4, &\"s:\\1;s:\\2\")"}));
    ASSERT_EQ(machine.boxes.shown.size(), 2U);
    const MessageBoxContent& success = machine.boxes.shown[0];
    const MessageBoxContent& failure = machine.boxes.shown[1];
    EXPECT_EQ(success.title, L"Réglages SOLIDWORKS réussie");
    EXPECT_EQ(success.icon, MessageBoxContent::Icon::None);
    EXPECT_EQ(failure.title, L"Echec du Réglage SOLIDWORKS");
    EXPECT_EQ(failure.icon, MessageBoxContent::Icon::Stop);
    EXPECT_EQ(failure.defaultButton, 2);
}

TEST_F(ConfigurationFixture, AddsATreeInThePickersOrderAndPassesOverLoops) {
    machine.files.links[L"c:\\p\\1\\retour"] = L"c:\\p";
    open(kTwo);
    window().click(IDC_FORM4_CMDCREER);
    EXPECT_TRUE(editing());
    openDirectory(L"c:\\p");
    const Texts picker = list(IDC_FORM4_DIR1).texts();
    window().click(IDC_FORM4_CMDAJO2);
    window().click(IDC_FORM4_CMDAJO1);
    EXPECT_EQ(list(IDC_FORM4_LIST2).texts(),
              (Texts{L"c:\\p", L"c:\\p\\1", L"c:\\p\\1\\x", L"c:\\p\\2"}));
    EXPECT_EQ(text(IDC_FORM4_CPT_REP), L"4");
    EXPECT_EQ(list(IDC_FORM4_DIR1).texts(), picker) << "the picker ends where it began";

    window().click(IDC_FORM4_CMDPLUS1);
    EXPECT_EQ(list(IDC_FORM4_LIST2).line(2), L"c:\\..\\1\\x");
    select(IDC_FORM4_LIST2, 1);
    window().click(IDC_FORM4_CMDRETIR2);
    window().click(IDC_FORM4_CMDMOINS1);
    EXPECT_EQ(list(IDC_FORM4_LIST2).texts(), (Texts{L"c:\\p", L"c:\\p\\2"}));

    window().control(IDC_FORM4_NOMDELACONF).content = L"";
    window().click(IDC_FORM4_CMDVALIDER);
    EXPECT_FALSE(editing());
    EXPECT_EQ(list(IDC_FORM4_LIST1).texts(), (Texts{L"En Cours", L"A", L"B", L"Defaut_3"}));
    EXPECT_EQ(list(IDC_FORM4_LIST3).texts(), (Texts{L"c:\\p", L"c:\\p\\2"}));
    EXPECT_TRUE(machine.automation.takeJournal().empty());
}

TEST_F(ConfigurationFixture, ModifyingTheFoldersInForceAppliesThemAtOnce) {
    open(kTwo);
    choose(0);
    window().click(IDC_FORM4_CMDMODIFIER);
    EXPECT_EQ(text(IDC_FORM4_NOMDELACONF), L"En Cours");
    select(IDC_FORM4_LIST2, 0);
    window().click(IDC_FORM4_CMDRETIR1);
    machine.automation.takeJournal();
    window().click(IDC_FORM4_CMDVALIDER);
    EXPECT_EQ(machine.automation.takeJournal(), CallJournal{L"setsearchfolders(0:i4, &\"s:\\2\")"});
}

TEST_F(ConfigurationFixture, OnlySauvegarderWritesTheFile) {
    open(kTwo);
    choose(1);
    window().click(IDC_FORM4_CMDRENOMMER);
    window().control(IDC_FORM4_NOMDELACONF).content = L"Z";
    window().click(IDC_FORM4_CMDVALIDER);
    choose(2);
    window().click(IDC_FORM4_CMDDETRUIRE);
    EXPECT_EQ(machine.files.texts[machine.programFiles.configurations], kTwo);
    window().click(IDC_FORM4_CMDENREGISTER);
    EXPECT_EQ(machine.files.texts[machine.programFiles.configurations],
              L"Configuration:  Z\r\n   c:\\a\r\n");
    machine.files.unreadable.insert(machine.programFiles.configurations);
    EXPECT_THROW(window().click(IDC_FORM4_CMDENREGISTER), RuntimeError);
}

TEST_F(ConfigurationFixture, AnnulerKeepsTheConfigurationsAndThePlace) {
    open(kTwo);
    window().click(IDC_FORM4_CMDCREER);
    window().moveTo(90000, 15);
    window().click(IDC_FORM4_CMDANNULER1);
    EXPECT_FALSE(editing());
    EXPECT_EQ(configurations.last, 2);
    EXPECT_EQ(machine.settings.read(L"mervale", L"listerepert", L"leftpos4", L""), L"15");
}

TEST_F(ConfigurationFixture, StaysOnItsDirectoryWhenADriveIsNotReady) {
    machine.files.presentDrives = {L'c', L'd'};
    machine.files.unreadable.insert(L"d:");
    open(kTwo);
    window().comboBox(IDC_FORM4_DRIVE1).chosen = 1;
    window().click(IDC_FORM4_DRIVE1);
    EXPECT_EQ(machine.boxes.shown.size(), 1U);
    EXPECT_EQ(window().comboBox(IDC_FORM4_DRIVE1).chosen, 0);
    EXPECT_EQ(list(IDC_FORM4_DIR1).texts(), (Texts{L"c:\\", L"  tarnwick"}));
}

}  // namespace
