// What the pass does when the session says no.

#include "unit/tracking/tracking_window_fixture.h"

struct Refusals : TrackingFixture {
    Saved saved(int line) { return work().lines[line].history.saved; }

    /// The calls and states that a command leaves, which may end the program.
    std::wstring outcome(int command) {
        select({2});
        machine.boxes.answers = {command == kSave ? Answer::Cancel : kYes};
        try {
            command == kTheWindow ? window().close() : click(command);
        } catch (const ProgramEnd&) {
        }
        machine.boxes.answers.clear();
        return calls() + L" " + states();
    }
};

TEST_F(Refusals, AreMetByEachMarkAtEachCommand) {
    enum { kPasses, kKeeps, kLeaves, kReferences, kNone };
    const wchar_t* const keys[] = {L"passerrefus", L"gardernonsauve", L"laisserouverts",
                                   L"references"};
    const struct {
        int command;
        const wchar_t* outcomes[5];  ///< for each mark, and without one
    } rows[] = {
        {kSave,
         {L"s-b+c+d 0 1 0 3", L"s 0 3 0 0", L"s+c 0 1 3 0", L"s-bd+c 0 1 3 0", L"s-b+c 0 1 3 0"}},
        {kSee,
         {L"-b+c+d 0 2 0 3", L"-b+c 0 2 3 0", L"+c 0 2 3 0", L"-bd+c 0 2 3 0", L"-b+c 0 2 3 0"}},
        {kSkip,
         {L"-b+c+d 0 0 0 3", L"-b+c 0 0 3 0", L"+c 0 0 3 0", L"-bd+c 0 0 3 0", L"-b+c 0 0 3 0"}},
        // What is closed by stepping back still counts as open, as ever.
        {kBack,
         {L"-b-b+a 0 0 0 0", L"-b-b+a 3 0 0 0", L"+a 3 0 0 0", L"-b-bd+a 3 0 0 0",
          L"-b-b+a 3 0 0 0"}},
        {kResume,
         {L"-b+c+d 0 0 0 3", L"-b+c 0 0 3 0", L"+c 0 0 3 0", L"-bd+c 0 0 3 0", L"-b+c 0 0 3 0"}},
        {kReset,
         {L"-b+a+b 0 3 0 0", L"-b+a 3 0 0 0", L"+a 3 0 0 0", L"-bd+a 3 0 0 0", L"-b+a 3 0 0 0"}},
        {kLeave, {L"-b 0 3 0 0", L"-b 0 3 0 0", L" 0 3 0 0", L"-bd 0 3 0 0", L"-b 0 3 0 0"}},
        {kTheWindow, {L" 0 3 0 0", L" 0 3 0 0", L" 0 3 0 0", L"d 0 3 0 0", L" 0 3 0 0"}},
    };
    for (int mark = kPasses; mark <= kNone; ++mark) {
        document(L"b") = {.warningCode = 128, .saved = std::int32_t{16}};
        if (mark == kPasses) refuse(L"ac");
        for (const auto& row : rows) {
            SCOPED_TRACE(std::to_string(mark) + " " + std::to_string(row.command));
            for (int i = kPasses; i < kNone; ++i) switchOn(keys[i], i == mark ? L"1" : L"0");
            const std::wstring loaded = loadStates(L"0000");
            EXPECT_EQ(loaded, mark == kPasses ? L"+a+b" : mark == kReferences ? L"d+a" : L"+a");
            if (mark != kPasses) click(kSkip);
            takeCalls();
            EXPECT_EQ(outcome(row.command), row.outcomes[mark]);
        }
        machine.automation.documents.clear();
    }
}

TEST_F(Refusals, ArePassedOverToTheEndOfTheDirection) {
    switchOn(L"passerrefus");
    // The list, the refused documents, the calls of the load, the buttons, and what is after them.
    using Text = const wchar_t*;
    const std::tuple<Text, Text, Text, std::vector<int>, Text> cases[] = {
        {L"000", L"ab", L"+a+b+c", {}, L" | 0 0 3 | 2: 3/3 c:\\c"},  // the last line, too
        {L"000", L"abc", L"+a+b+c", {}, L" | 0 0 0 | 3: 3/3 Aucun"},
        {L"0000", L"bcd", L"+a", {kSee}, L"-a+b+c+d | 2 0 0 0 | 4: 4/4 Aucun"},
        {L"0000", L"bc", L"+a", {kSkip, kBack}, L"-a+b+c+d-d-d+c+b+a | 3 0 0 0 | 0: 1/4 c:\\a"},
        {L"0100", L"a", L"+a+c", {kBack}, L"-c-c+a | 0 1 0 0 | -1: 1/4 aucun"},
        // Nothing is open there, either, that could be saved or closed.
        {L"00", L"a", L"+a+b", {kBack, kSave}, L"-b-b+a+a+b | 0 3 | 1: 2/2 c:\\b"},
    };
    for (const auto& [codes, refused, loading, buttons, outcome] : cases) {
        SCOPED_TRACE(outcome);
        machine.automation.documents.clear();
        refuse(refused);
        EXPECT_EQ(loadStates(codes), loading);
        EXPECT_EQ(after(buttons), outcome);
        EXPECT_EQ(canAdvance(), !has(shown(), L"Aucun"));
        EXPECT_EQ(canStepBack(), !has(shown(), L"aucun"));
        EXPECT_EQ(machine.boxes.takeTexts(), Texts());
        // None of them is asked about at the next start.
        machine.boxes.answers = {kYes};
        start();
        for (const std::wstring& text : machine.boxes.takeTexts()) {
            EXPECT_FALSE(has(text, L"pendant l'ouverture"));
        }
        machine.boxes.answers.clear();
    }
}

TEST_F(Refusals, CloseWhatWasGivenAndEndTheProgramWhenTheSessionIsLostOrTheMarkIsOff) {
    switchOn(L"passerrefus");
    machine.automation.overrides[L"ActivateDoc2"] = [](auto) -> Value { return ObjectPtr(); };
    EXPECT_EQ(loadStates(L"00"), L"+a-a+b-b");
    EXPECT_EQ(remark(0), L"Non ouvert : document non rendu (91)");
    // With the mark off the second call may give it, and it ends as ever where that fails. So it
    // does whenever the session itself is lost.
    machine.automation.overrides.clear();
    loadStates(L"000");
    click(IDM_FORM3_PASSERREFUS);
    refuse(L"b");
    EXPECT_EQ(raised([&] { click(kSkip); }), 91);
    EXPECT_EQ(calls(), L"-a+b");
    click(IDM_FORM3_PASSERREFUS);
    loadStates(L"000");
    machine.automation.overrides[L"OpenDoc6"] = [](auto) -> Value {
        RuntimeError error = errors::automation(L"");
        error.sessionLost = true;
        throw error;
    };
    EXPECT_EQ(raised([&] { click(kSave); }), 440);
    EXPECT_TRUE(form->keepsMarks());
    EXPECT_EQ(remark(1), L"Non ouvert : l'appel a échoué (440)");
}

TEST_F(Refusals, FiveInARowAreAskedAbout) {
    switchOn(L"passerrefus");
    loadStates(L"000000000000");
    refuse(L"bcdefghijk");
    machine.boxes.answers = {kYes, kNo};
    EXPECT_EQ(after({kSave}),
              L"s-a+b+c+d+e+f+g+h+i+j+k | 1 0 0 0 0 0 0 0 0 0 0 0 | 10: 11/12 c:\\k");
    EXPECT_EQ(machine.boxes.shown.back().defaultButton, 2);
    EXPECT_EQ(machine.boxes.takeTexts(),
              Texts(2, L"Cinq documents de suite ne se sont pas ouverts.\r\nContinuer ?"));
    EXPECT_EQ(list().selection(), std::vector{10});
    EXPECT_TRUE(canAdvance() && canStepBack() && cad->hasOpen(L""));
    // There is nothing to save or to close.
    const std::pair<int, const wchar_t*> cases[] = {{kSave, L"+g 0 0 0 0 0 0 0"},
                                                    {kSee, L"+g 0 0 0 0 0 0 0"},
                                                    {kSkip, L"+g 0 0 0 0 0 0 0"},
                                                    {kBack, L"+e+d+c+b+a 3 0 0 0 0 0 0"},
                                                    {kLeave, L" 0 0 0 0 0 0 0"}};
    for (const auto& [button, expected] : cases) {
        machine.boxes.answers = {kNo};
        loadStates(L"0000000");
        click(kSkip);
        takeCalls();
        EXPECT_EQ(outcome(button), expected) << button;
    }
}

TEST_F(Refusals, OfASaveAreAskedAboutOrOnlyTold) {
    loadStates(L"00");
    document(L"a").saved = std::int32_t{16};
    click(kSave);
    EXPECT_EQ(remark(0), L"Non enregistré : fichier verrouillé (16)");
    EXPECT_EQ(saved(0), Saved::No);
    EXPECT_EQ(window().alert, Alert::Refusal);
    click(kSkip);
    EXPECT_EQ(window().alert, Alert::None);

    switchOn(L"gardernonsauve");
    // Of a document that counts as open though no line is the current one.
    machine.boxes.answers = {Answer::Cancel};
    loadStates(L"00");
    EXPECT_EQ(after({kBack, kSave}), L"-as | 0 0 | -1: 1/2 aucun");
    EXPECT_TRUE(has(machine.boxes.takeTexts().at(0), L"c:\\a"));
    loadStates(L"00");
    document(L"a").saved = false;
    machine.boxes.answers = {Answer::Retry, Answer::Cancel};
    EXPECT_EQ(after({kSave}), L"ss | 3 0 | 0: 1/2 c:\\a");
    EXPECT_EQ(machine.boxes.shown.back().buttons, MessageBoxContent::Buttons::RetryCancel);
    EXPECT_EQ(machine.boxes.takeTexts(),
              Texts(2, L"SolidWorks n'a pas enregistré :\r\nc:\\a\r\nautre erreur (1)"));
    EXPECT_EQ(remark(0), L"Non enregistré : autre erreur (1)");
    // Marked without a save, it still was not saved.
    click(kSee);
    EXPECT_EQ(saved(0), Saved::No);
    // Another try that succeeds leaves nothing to say.
    loadStates(L"00");
    machine.boxes.whileShown = [&] { document(L"a").saved = true; };
    machine.boxes.answers = {Answer::Retry};
    EXPECT_EQ(after({kSave}), L"ss-a+b | 1 3 | 1: 2/2 c:\\b");
    EXPECT_EQ(remark(0), L"");
    EXPECT_EQ(saved(0), Saved::Yes);
    EXPECT_EQ(window().alert, Alert::None);
}

TEST_F(Refusals, WarningsColourTheTaskbarAndRemarksOutliveTheRun) {
    loadStates(L"000");
    document(L"b") = {.errorCode = 2, .warningCode = 128 | 32 | 1};
    click(kSave);
    EXPECT_EQ(window().alert, Alert::Warning);
    click(kSave);
    EXPECT_EQ(window().alert, Alert::None);
    machine.boxes.answers = {kYes};
    start();
    EXPECT_TRUE(has(report(),
                    L";oui;Ouvert avec erreur : fichier ou composant introuvable (2) | "
                    L"Avertissement (1) | A reconstruire (32) | Déjà ouvert (128)\r\n"));
}

TEST_F(Refusals, DocumentsThatTheUserHadOpenAreClosedOnceTheMarkIsOff) {
    switchOn(L"laisserouverts");
    document(L"b").warningCode = 128 | 2;
    loadStates(L"0000");
    clickAll({kSave, kSave});
    // Nor is anything closed without a name, which closes the active one.
    EXPECT_EQ(after({kBack}), L"s-a+bs+c-c | 1 1 0 0 | -1: 3/4 aucun");
    loadStates(L"1000");
    click(IDM_FORM3_LAISSEROUVERTS);
    EXPECT_EQ(after({kSkip}), L"-b+c | 1 0 3 0 | 2: 3/4 c:\\c");
}

TEST_F(Refusals, ReferencesAreLookedForBesideTheDocument) {
    switchOn(L"references");
    load(L"0  c:\\plans\\a\r\n0  c:\\b\r\n0  c\r\n");
    click(kSkip);
    const auto journal = takeCalls();
    EXPECT_EQ(journal[0], L"SetCurrentWorkingDirectory(\"c:\\plans\")");
    EXPECT_TRUE(journal[1].starts_with(L"OpenDoc6(&\"c:\\plans\\a\""));
    EXPECT_NE(std::ranges::find(journal, L"SetCurrentWorkingDirectory(\"c:\\\")"), journal.end());
    click(IDM_FORM3_REFERENCES);
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_EQ(takeCalls().back(), L"SetCurrentWorkingDirectory(\"c:\\plans\")");
    // Never changed, it is never set back; and a session that can't doesn't mind.
    loadStates(L"00");
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_EQ(takeCalls(), CallJournal());
    click(IDM_FORM3_REFERENCES);
    machine.automation.overrides[L"SetCurrentWorkingDirectory"] = [](auto) -> Value {
        throw errors::unknownMember(L"SetCurrentWorkingDirectory");
    };
    click(kSkip);
    EXPECT_EQ(states(), L"0 3");
    EXPECT_THROW(window().close(), ProgramEnd);
}
