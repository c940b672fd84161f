#include <gtest/gtest.h>

#include "app/program.h"
#include "fakes/fake_platform.h"

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

    void ChargerForm1() override { journal.push_back(L"[SelectionWindow]"); }
    void ChargerForm2() override { journal.push_back(L"[ExistingListWindow]"); }
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
                                L"[SelectionWindow]",
                            }));
    EXPECT_TRUE(machine.boxes.shown.empty());

    // An existing list is asked about, even an empty one.
    machine.files.texts[L"d:\\outils\\tarnwick\\tarnwick.lst"] = L"";
    main();
    EXPECT_EQ(machine.automation.journal.back(), L"[ExistingListWindow]");
}
