#include "startup/program.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "unit/raised.h"

namespace {

/// Writes what is read into the journal of the calls.
struct JournalledSettings : FakeSettings {
    explicit JournalledSettings(CallJournal& calls) : journal(calls) {}
    CallJournal& journal;

    std::wstring read(const std::wstring& application, const std::wstring& section,
                      const std::wstring& key, const std::wstring& otherwise) override {
        journal.push_back(L"read " + application + L'/' + section + L'/' + key + L" or " +
                          otherwise);
        return FakeSettings::read(application, section, key, otherwise);
    }
};

/// Start-up up to the first window, which is noted and not made.
struct StartUp : Program {
    StartUp(const Platform& platform, CallJournal& calls) : Program(platform), journal(calls) {}
    CallJournal& journal;

    void ChargerForm1() override { journal.push_back(L"[Form1]"); }
    void ChargerForm2() override { journal.push_back(L"[Form2]"); }
    void ChargerAPropos() override { journal.push_back(L"[APropos]"); }
};

class ProgramMain : public testing::Test {
 protected:
    void main() {
        Platform platform{machine.automation,     settings,        machine.files,
                          machine.boxes,          machine.desktop, machine.windows,
                          L"d:\\outils\\tarnwick"};
        StartUp(platform, machine.automation.journal).Main();
    }

    FakePlatform machine;
    JournalledSettings settings{machine.automation.journal};
};

const CallJournal kPlacesRead = {
    L"[APropos]",
    L"read tarnwick/startup/toppos or 1416",
    L"read tarnwick/startup/leftpos or 2964",
    L"read tarnwick/startup/toppos2 or 1416",
    L"read tarnwick/startup/leftpos2 or 2964",
    L"read tarnwick/startup/toppos3 or 1416",
    L"read tarnwick/startup/leftpos3 or 2964",
    L"read mervale/listerepert/toppos4 or 1416",
    L"read mervale/listerepert/leftpos4 or 2964",
};

CallJournal operator+(CallJournal first, const CallJournal& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

TEST_F(ProgramMain, GoesThroughItsStepsInOrder) {
    main();
    EXPECT_EQ(machine.automation.journal,
              kPlacesRead + CallJournal({
                                L"attach SldWorks.Application",
                                L"[APropos]",
                                L"RevisionNumber()",
                                L"GetCurrentWorkingDirectory()",
                                L"create Scripting.FileSystemObject",
                                L"Fso.fileExists(\"d:\\outils\\tarnwick\\tarnwick.lst\")",
                                L"[Form1]",
                            }));
    EXPECT_TRUE(machine.boxes.shown.empty());
}

TEST_F(ProgramMain, PromptsForAnExistingListEvenAnEmptyOne) {
    machine.files.texts[L"d:\\outils\\tarnwick\\tarnwick.lst"] = L"";
    main();
    EXPECT_EQ(machine.automation.journal.back(), L"[Form2]");
}

TEST_F(ProgramMain, EndsWithAMessageWhenNoSessionRuns) {
    machine.automation.sessionRuns = false;
    EXPECT_THROW(main(), ProgramEnd);
    ASSERT_EQ(machine.boxes.shown.size(), 1U);
    const MessageBoxContent& box = machine.boxes.shown.front();
    EXPECT_EQ(
        box.text,
        L" Une session SolidWorks doit être ouverte  \r\n   pour que Tarnwick puisse démarrer.");
    EXPECT_EQ(box.title, L"Tarnwick by Mervale");
    EXPECT_EQ(box.buttons, MessageBoxContent::Buttons::Ok);
    EXPECT_EQ(box.icon, MessageBoxContent::Icon::None);
    EXPECT_EQ(box.helpFile, L"");
    EXPECT_EQ(machine.automation.journal,
              kPlacesRead + CallJournal({L"attach SldWorks.Application"}));
}

TEST_F(ProgramMain, FailsOnABadSavedPlaceBeforeTheSessionIsLookedFor) {
    settings.write(L"mervale", L"listerepert", L"leftpos4", L"gauche");
    EXPECT_EQ(raised([&] { main(); }), 13);
    settings.write(L"tarnwick", L"startup", L"TopPos2", L"32768");
    EXPECT_EQ(raised([&] { main(); }), 6);
    for (const auto& call : machine.automation.journal) EXPECT_FALSE(call.starts_with(L"attach"));
}

TEST_F(ProgramMain, FailsWithTheSessionsOwnErrors) {
    machine.automation.overrides[L"GetCurrentWorkingDirectory"] = [](auto) -> Value {
        throw errors::automation(L"");
    };
    EXPECT_EQ(raised([&] { main(); }), 440);
    EXPECT_EQ(machine.automation.journal.back(), L"GetCurrentWorkingDirectory()");
}

TEST_F(ProgramMain, GoesOnWithAReleaseItDoesNotKnow) {
    machine.automation.revision = L"13.1.0";
    main();
    EXPECT_EQ(machine.automation.journal.back(), L"[Form1]");
}
