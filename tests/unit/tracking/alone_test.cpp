// The last mark undone, and the pass that goes on alone.

#include <random>

#include "tracking/alone_ids.h"
#include "unit/tracking/tracking_window_fixture.h"

struct Undo : TrackingFixture {
    bool canUndo() { return !window().greyedItems.contains(kUndo); }
};

struct Alone : TrackingFixture {
    Alone() { machine.automation.revision = L"28.1"; }

    /// Whether it can go on alone.
    bool canGoOn() { return !window().greyedItems.contains(IDM_FORM3_SEUL); }
    /// Goes on alone; returns the text of the box at the end.
    std::wstring goOn(Answer answer = kYes) {
        machine.boxes.answers = {answer};
        click(IDM_FORM3_SEUL);
        return machine.boxes.takeTexts().back();
    }
    /// That text.
    static std::wstring told(const wchar_t* end, int saved, int notOpened, int notSaved) {
        return std::wstring(L"Passage ") + end + L".\r\nEnregistrés : " + std::to_wstring(saved) +
               L"\r\nNon ouverts : " + std::to_wstring(notOpened) + L"\r\nNon enregistrés : " +
               std::to_wstring(notSaved);
    }

    /// The same by hand: what is not saved is skipped, after five refusals it ends.
    void goOnByHand() {
        machine.boxes.whileShown = [&] { machine.boxes.answers = {Answer::Cancel}; };
        while (canAdvance() && !cad->hasOpen(L"")) {
            machine.boxes.shown.clear();
            click(kSave);
            for (const std::wstring& text : machine.boxes.takeTexts()) {
                if (has(text, L"enregistré")) click(kSkip);
            }
        }
        machine.boxes.whileShown = [] {};
    }
};

TEST_F(Undo, OpensTheLineAgainThatTheLastCommandLeft) {
    for (const int button : {kSave, kSee, kSkip}) {
        load(L"10 c:\\a\r\n1  c:\\b\r\n10 c:\\c\r\n");
        takeCalls();
        EXPECT_FALSE(canUndo());
        EXPECT_EQ(after({button, kSaveList, kUndo}),
                  std::wstring(button == kSave ? L"s" : L"") + L"-a+c-c+a | 3 1 0 | 0: 1/3 c:\\a");
        EXPECT_EQ(list().selection(), std::vector{0});
        // What was saved stays so, whatever it is marked now.
        const std::wstring line =
            std::wstring(L"\n1;En cours;c:\\a;;0;") + (button == kSave ? L"oui;\r" : L";\r");
        EXPECT_TRUE(has(report(), line));
        EXPECT_EQ(after({kUndo, kSee}), L"-a+c | 2 1 3 | 2: 3/3 c:\\c");
        EXPECT_EQ(work().lines[0].history.saved == Saved::Yes, button == kSave);
    }
}

TEST_F(Undo, GoesBackThroughTheWholeRunAcrossItsEnd) {
    loadStates(L"000");
    EXPECT_EQ(after({kSave, kSkip, kSee}), L"s-a+b-b+c-c | 1 0 2 | 3: 3/3 Aucun");
    for (const wchar_t* step : {L"+c | 1 0 3 | 2: 3/3 c:\\c", L"-c+b | 1 3 0 | 1: 2/3 c:\\b",
                                L"-b+a | 3 0 0 | 0: 1/3 c:\\a"}) {
        EXPECT_EQ(after({kUndo}), step);
        EXPECT_TRUE(canAdvance() && canStepBack());
    }
    EXPECT_FALSE(canUndo());
    // After a kill the marks are as they were left, and there is nothing to undo.
    clickAll({kSave, kSave, kUndo});
    machine.boxes.answers = {kYes};
    start();
    EXPECT_EQ(states(), L"1 3 0");
    EXPECT_FALSE(canUndo());
}

TEST_F(Undo, IsForgottenByAllThatChangesTheList) {
    const auto canUndoAfter = [&](int button, int line) {
        loadStates(L"0000");
        clickAll({kSave, kSave});
        command(button, {line});
        return canUndo();
    };
    for (const int button : {kBack, kReset, IDC_FORM3_CMDELIF, IDC_FORM3_CMDPURGE}) {
        EXPECT_FALSE(canUndoAfter(button, 0)) << button;
    }
    EXPECT_FALSE(canUndoAfter(kResume, 1) || canUndoAfter(IDC_FORM3_CMDCHAF, 3));
    for (const int button : {IDC_FORM3_CMDCHAF, IDC_FORM3_CMDELIV, IDC_FORM3_CMDPLUS1, kSaveList}) {
        EXPECT_TRUE(canUndoAfter(button, 0)) << button;
    }
}

TEST_F(Undo, OfALineThatNoLongerOpensGoesOnOrEnds) {
    loadStates(L"0000");
    click(kSave);
    refuse(L"a");
    EXPECT_EQ(raised([&] { click(kUndo); }), 91);
    machine.automation.documents.clear();
    switchOn(L"passerrefus");
    loadStates(L"0000");
    clickAll({kSave, kSave});
    refuse(L"b");
    takeCalls();
    EXPECT_EQ(after({kUndo}), L"-c+b+c | 1 0 3 0 | 2: 3/4 c:\\c");
}

TEST_F(Alone, DoesWhatAPersonWouldWhoPressesTheFirstButton) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::mt19937 random(seed);
        const auto oneIn = [&](unsigned n) { return random() % n == 0; };
        std::wstring codes;
        for (wchar_t name = L'a'; name <= L'z'; ++name) {
            codes += oneIn(4) ? L'1' : L'0';
            FakeDocument& said = document(std::wstring(1, name).c_str()) = {};
            if (oneIn(seed % 2 == 0 ? 2 : 6)) said.opens = false;
            if (oneIn(5)) said.saved = std::int32_t{1};
            if (oneIn(7)) said.warningCode = 128;
        }
        switchOn(L"passerrefus");
        switchOn(L"gardernonsauve");
        switchOn(L"laisserouverts", seed % 3 == 0 ? L"1" : L"0");
        std::pair<CallJournal, std::wstring> traces[2];
        for (const bool alone : {false, true}) {
            machine.boxes.answers = {kNo, kNo};
            loadStates(codes);
            machine.boxes.answers.clear();
            if (!alone) goOnByHand();
            if (alone && canGoOn()) goOn();
            traces[alone].first = takeCalls();
            traces[alone].second = after({}) + report();
        }
        EXPECT_EQ(traces[0], traces[1]) << seed;
    }
}

TEST_F(Alone, AsksForWhatItWillCloseAndTellsWhatBecameOfIt) {
    loadStates(L"100");
    EXPECT_EQ(
        goOn(kNo),
        L"Enregistrer et fermer 2 documents l'un après l'autre, jusqu'à la fin de la liste ?");
    EXPECT_EQ(goOn(), told(L"terminé", 2, 0, 0));
    EXPECT_FALSE(canGoOn());
    click(kUndo);
    EXPECT_EQ(states(), L"1 1 3");
    EXPECT_EQ(goOn(kNo), L"Enregistrer et fermer 1 document, jusqu'à la fin de la liste ?");
    machine.boxes.answers = {kNo};
    click(IDM_FORM3_SEUL);
    EXPECT_EQ(machine.boxes.shown.back().defaultButton, 2);
    // What stepping back has closed counts as open, but is not.
    click(kBack);
    command(kResume, {1});
    EXPECT_FALSE(canGoOn());
    // What is open may be another line's: saved with its flag, its own was no longer found.
    load(L"1  c:\\a\r\n10 c:\\b\r\n11 c:\\c\r\n");
    click(kSaveList);
    command(IDC_FORM3_CMDELIF, {0});
    EXPECT_TRUE(cad->isOpen() && !canGoOn());
    // Whatever the marks say, it asks nothing.
    switchOn(L"gardernonsauve");
    loadStates(L"0000");
    document(L"a").saved = false;
    refuse(L"bd");
    EXPECT_EQ(goOn(), told(L"terminé", 1, 2, 1));
    EXPECT_EQ(after({}), L"s-a+b+cs-c+d | 0 0 1 0 | 4: 4/4 Aucun");
}

// Nobody may be there to answer: a fault that passes holds nothing up.
TEST_F(Alone, TellsThatMarksAreNotKeptOnceADocumentLater) {
    for (const bool lasts : {false, true}) {
        machine.records.fails = [](int) { return false; };
        loadStates(L"00000");
        int documents = 0;
        machine.watch.goesOn = [&] {
            const bool fails = ++documents == 2 || (lasts && documents > 2);
            machine.records.fails = [=](int) { return fails; };
            return true;
        };
        machine.boxes.answers = {kYes};
        click(IDM_FORM3_SEUL);
        const Texts told = machine.boxes.takeTexts();
        ASSERT_EQ(told.size(), lasts ? 3U : 2U);
        EXPECT_EQ(told[1].starts_with(L"Libérez"), lasts);
        EXPECT_EQ(form->keepsMarks(), !lasts);
    }
}

TEST_F(Alone, ShowsHowFarItIsAndHoldsTheMachineAwake) {
    loadStates(L"0000");
    refuse(L"b");
    Texts shown;
    machine.watch.goesOn = [&] {
        FakeWindow& progress = machine.window(IDD_ALONE);
        EXPECT_TRUE(machine.power.awake && progress.state == FakeWindow::State::Aside);
        machine.clock.milliseconds += 60'000;
        shown.push_back(progress.control(IDC_ALONE_COUNT).content + L' ' +
                        progress.control(IDC_ALONE_DOCUMENT).content + L' ' +
                        progress.control(IDC_ALONE_TIMELEFT).content);
        return true;
    };
    goOn();
    shown.pop_back();  // served once more at the end
    EXPECT_EQ(shown, (Texts{L"Document 1 sur 4 c:\\a Temps restant : inconnu",
                            L"Document 3 sur 4 c:\\c Temps restant : environ 2 minutes",
                            L"Document 4 sur 4 c:\\d Temps restant : environ une minute"}));
    EXPECT_FALSE(machine.power.awake);
}

TEST_F(Alone, IsStoppedByTheUserBetweenTwoCommands) {
    switchOn(L"references");
    // After so many commands, by the frame or not, and what is left.
    const std::tuple<int, bool, const wchar_t*> cases[] = {
        {2, false, L"s-ad+bs-bd+c | 1 1 3 0 | 2: 3/4 c:\\c"},
        {2, true, L"s-ad+bs-bd+cd | 1 1 3 0 | 2: 3/4 c:\\c"},
        {4, true, L"s-ad+bs-bd+cs-cd+ds-dd | 1 1 1 1 | 4: 4/4 Aucun"}};
    for (const auto& [commands, byFrame, expected] : cases) {
        loadStates(L"0000");
        int left = commands;
        const bool stops = byFrame;
        machine.watch.goesOn = [&] {
            if (left-- == 0 && stops) throw ProgramEnd{};
            return left >= 0;
        };
        if (byFrame) {
            EXPECT_THROW(goOn(), ProgramEnd);
        } else {
            EXPECT_EQ(goOn(), told(L"interrompu", 2, 0, 0));
        }
        EXPECT_EQ(after({}), expected);
        EXPECT_FALSE(machine.power.awake);
    }
}

TEST_F(Alone, StopsByItselfAfterFiveRefusalsOrWhenTheSessionRunsShort) {
    loadStates(L"00000000");
    refuse(L"bcdefg");
    EXPECT_EQ(goOn(), told(L"interrompu", 1, 5, 0) +
                          L"\r\nCinq documents de suite ne se sont pas ouverts.");
    EXPECT_EQ(after({}), L"s-a+b+c+d+e+f | 1 0 0 0 0 0 0 0 | 5: 6/8 c:\\f");
    EXPECT_FALSE(canGoOn());
    EXPECT_TRUE(canAdvance() && canStepBack());
    click(kUndo);
    EXPECT_EQ(states(), L"3 0 0 0 0 0 0 0");

    machine.automation.documents.clear();
    machine.desktop.windows = {{L"SOLIDWORKS Premium 2020 - [a b c]", 7}};
    for (const int inUse : {8'500, 8'501}) {
        loadStates(L"000");
        machine.desktop.gdiObjectsOf = {};
        machine.automation.overrides[L"save2"] = [&](auto) -> Value {
            machine.desktop.gdiObjectsOf = {{7, inUse}};
            return std::int32_t{0};
        };
        EXPECT_TRUE(goOn().starts_with(inUse == 8'500
                                           ? told(L"terminé", 3, 0, 0)
                                           : told(L"interrompu", 1, 0, 0) +
                                                 L"\r\nSolidWorks utilise trop d'objets"));
    }
    EXPECT_EQ(states(), L"1 3 0");
}
