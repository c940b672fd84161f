// What the pass does when the session says no.

#include "unit/tracking/tracking_window_fixture.h"

namespace {

struct Refusals : TrackingFixture {
    using Answer = MessageBoxes::Answer;

    std::wstring remark(int line) {
        return wideText(remarkText(work().lines[line].history.remark));
    }
    const MessageBoxContent& lastBox() { return machine.boxes.shown.back(); }
};

}  // namespace

TEST_F(Refusals, ArePassedOverInTheDirectionOfTheCommand) {
    switchOn(L"passerrefus");
    const struct {
        const wchar_t *states, *refused;
        std::vector<int> buttons;
        const wchar_t *calls, *after, *shown;
    } cases[] = {
        {L"0000", L"ab", {}, L"+a+b+c", L"0 0 3 0", L"2: 3/4 c:\\c"},
        {L"000", L"ab", {}, L"+a+b+c", L"0 0 3", L"2: 3/3 c:\\c"},  // the last line, too
        {L"000", L"abc", {}, L"+a+b+c", L"0 0 0", L"3: 3/3 Aucun"},
        {L"00000", L"bc", {IDC_FORM3_CMDSUIV}, L"+as-a+b+c+d", L"1 0 0 3 0", L"3: 4/5 c:\\d"},
        {L"0000", L"bcd", {IDC_FORM3_CMDSUIVQUITTER}, L"+a-a+b+c+d", L"2 0 0 0", L"4: 4/4 Aucun"},
        {L"00000",
         L"bc",
         {IDC_FORM3_CMDSUIVSAUTER, IDC_FORM3_CMDPRECEDENT},
         // What is closed by stepping back still counts as open, as ever.
         L"+a-a+b+c+d-d-d+c+b+a",
         L"3 0 0 0 0",
         L"0: 1/5 c:\\a"},
        {L"0100", L"a", {IDC_FORM3_CMDPRECEDENT}, L"+a+c-c-c+a", L"0 1 0 0", L"-1: 1/4 aucun"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.calls);
        machine.automation.documents.clear();
        refuse(c.refused);
        std::wstring list;
        wchar_t name = L'a';
        for (const wchar_t* state = c.states; *state; ++state) {
            list += *state + (L"  c:\\" + std::wstring{name++}) + L"\r\n";
        }
        load(list);
        clickAll(c.buttons);
        EXPECT_EQ(calls(), c.calls);
        EXPECT_EQ(states(), c.after);
        EXPECT_EQ(shown(), c.shown);
        EXPECT_EQ(canAdvance(), shown().find(L"Aucun") == std::wstring::npos);
        EXPECT_EQ(canStepBack(), shown().find(L"aucun") == std::wstring::npos);
        EXPECT_TRUE(machine.boxes.shown.empty());
        // None of them is asked about at the next start.
        machine.boxes.answers = {kYes};
        start();
        for (const auto& box : machine.boxes.shown) {
            EXPECT_EQ(box.text.find(L"pendant l'ouverture"), std::wstring::npos);
        }
        machine.boxes.shown.clear();
        machine.boxes.answers.clear();
        takeCalls();
    }
}

TEST_F(Refusals, OfEachKindAreNotOpenAndCloseWhatWasGiven) {
    switchOn(L"passerrefus");
    const struct {
        FakeDocument said;
        const wchar_t *calls, *remark;
    } cases[] = {
        {{.opens = false}, L"+b+c", L"Non ouvert : document non rendu (91)"},
        {{.opens = false, .errorCode = 2, .warningCode = 2},
         L"+b+c",
         L"Non ouvert : fichier ou composant introuvable (2) | Lecture seule (2)"},
        {{.fails = L"OpenDoc6"}, L"+b+c", L"Non ouvert : l'appel a échoué (440)"},
        {{.fails = L"ActivateDoc2"}, L"+b-b+c", L"Non ouvert : l'appel a échoué (440)"},
        {{.errorCode = 2, .fails = L"ForceRebuild3"},
         L"+b-b+c",
         L"Non ouvert : l'appel a échoué (440)"},
    };
    for (const auto& c : cases) {
        loadStates(L"000");
        document(L"b") = c.said;
        tickOptions(L"1110");
        click(IDC_FORM3_CMDSUIVSAUTER);
        EXPECT_EQ(calls().substr(2), c.calls);
        EXPECT_EQ(states(), L"0 0 3");
        EXPECT_EQ(remark(1), c.remark);
        EXPECT_EQ(work().lines[1].history.secondsOpen, -1);
    }
    machine.automation.documents.clear();
    machine.automation.overrides[L"ActivateDoc2"] = [](auto) -> Value { return ObjectPtr(); };
    machine.boxes.answers = {};
    load(L"0  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(calls(), L"+a-a+b-b");
    EXPECT_EQ(remark(0), L"Non ouvert : document non rendu (91)");
    // With the mark off the second call may give it, and it ends as ever where that fails.
    machine.automation.overrides.clear();
    loadStates(L"000");
    click(IDM_FORM3_PASSERREFUS);
    refuse(L"b");
    EXPECT_EQ(raised([&] { click(IDC_FORM3_CMDSUIVSAUTER); }), 91);
    EXPECT_EQ(calls(), L"-a+b");
}

TEST_F(Refusals, EndTheProgramWhenTheSessionIsLost) {
    switchOn(L"passerrefus");
    loadStates(L"000");
    machine.automation.overrides[L"OpenDoc6"] = [](auto) -> Value {
        RuntimeError error = errors::automation(L"");
        error.sessionLost = true;
        throw error;
    };
    EXPECT_EQ(raised([&] { click(IDC_FORM3_CMDSUIV); }), 440);
    EXPECT_TRUE(form->keepsMarks());
    EXPECT_EQ(remark(1), L"Non ouvert : l'appel a échoué (440)");
}

TEST_F(Refusals, FiveInARowAreAskedAbout) {
    switchOn(L"passerrefus");
    const std::wstring question = L"Cinq documents de suite ne se sont pas ouverts.\r\nContinuer ?";
    loadStates(L"000000000000");
    refuse(L"bcdefghijk");
    machine.boxes.answers = {kYes, kNo};
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(calls(), L"s-a+b+c+d+e+f+g+h+i+j+k");
    ASSERT_EQ(machine.boxes.shown.size(), 2U);
    EXPECT_EQ(lastBox().text, question);
    EXPECT_EQ(lastBox().defaultButton, 2);
    EXPECT_EQ(states(), L"1 0 0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(shown(), L"10: 11/12 c:\\k");
    EXPECT_EQ(list().selection(), std::vector{10});
    EXPECT_TRUE(canAdvance() && canStepBack() && cad->hasOpen(L""));
    // There is nothing to save or to close: all three go on.
    for (const int button :
         {IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMDSUIVSAUTER}) {
        machine.boxes.answers = {kNo};
        loadStates(L"0000000");
        click(IDC_FORM3_CMDSUIVSAUTER);
        takeCalls();
        click(button);
        EXPECT_EQ(calls(), L"+g");
        EXPECT_EQ(states(), L"0 0 0 0 0 0 0");
        EXPECT_EQ(shown(), L"7: 7/7 Aucun");
    }
}

TEST_F(Refusals, OfASaveAreAskedAboutOrOnlyTold) {
    loadStates(L"00");
    document(L"a").saved = std::int32_t{16};
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(calls(), L"s-a+b");
    EXPECT_EQ(remark(0), L"Non enregistré : fichier verrouillé (16)");
    EXPECT_EQ(work().lines[0].history.saved, Saved::No);
    EXPECT_EQ(window().alert, Alert::Refusal);
    click(IDC_FORM3_CMDSUIVSAUTER);
    EXPECT_EQ(window().alert, Alert::None);

    switchOn(L"gardernonsauve");
    loadStates(L"00");
    document(L"a").saved = false;
    const auto before = list().texts();
    machine.boxes.answers = {Answer::Retry, Answer::Cancel};
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(calls(), L"ss");
    EXPECT_EQ(lastBox().text, L"SolidWorks n'a pas enregistré :\r\nc:\\a\r\nautre erreur (1)");
    EXPECT_EQ(lastBox().buttons, MessageBoxContent::Buttons::RetryCancel);
    EXPECT_EQ(list().texts(), before);
    EXPECT_EQ(shown(), L"0: 1/2 c:\\a");
    EXPECT_EQ(remark(0), L"Non enregistré : autre erreur (1)");
    // Marked without a save, it still was not saved.
    click(IDC_FORM3_CMDSUIVQUITTER);
    EXPECT_EQ(work().lines[0].history.saved, Saved::No);
    // Another try that succeeds leaves nothing to say.
    loadStates(L"00");
    machine.boxes.whileShown = [&] { document(L"a").saved = true; };
    machine.boxes.answers = {Answer::Retry};
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(states(), L"1 3");
    EXPECT_EQ(remark(0), L"");
    EXPECT_EQ(work().lines[0].history.saved, Saved::Yes);
    EXPECT_EQ(window().alert, Alert::None);
}

TEST_F(Refusals, WarningsColourTheTaskbarAndRemarksOutliveTheRun) {
    loadStates(L"000");
    document(L"b") = {.errorCode = 2, .warningCode = 128 | 32 | 1};
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(window().alert, Alert::Warning);
    const std::wstring said =
        L"Ouvert avec erreur : fichier ou composant introuvable (2) | Avertissement (1) | "
        L"A reconstruire (32) | Déjà ouvert (128)";
    EXPECT_EQ(remark(1), said);
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(window().alert, Alert::None);
    machine.boxes.answers = {kYes};
    start();
    EXPECT_EQ(remark(1), said);
    machine.fileDialogs.answer = L"c:\\r.csv";
    click(IDM_FORM3_RAPPORT);
    EXPECT_NE(machine.files.texts[L"c:\\r.csv"].find(L";oui;" + said + L"\r\n"),
              std::wstring::npos);
}

TEST_F(Refusals, DocumentsThatTheUserHadOpenAreNeverClosed) {
    switchOn(L"laisserouverts");
    document(L"b").warningCode = 128 | 2;
    loadStates(L"0000");
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(calls(), L"s-a+b");
    clickAll({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDPRECEDENT});
    EXPECT_EQ(calls(), L"s+c-c");  // nor without a name, which closes the active one
    for (const int button : {IDC_FORM3_CMDSUIVSAUTER, IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMDREPA}) {
        load(L"0  c:\\b\r\n0  c:\\c\r\n0  c:\\d\r\n");
        list().clearSelection();
        list().select(1, true);
        click(button);
        EXPECT_EQ(calls().find(L'-'), std::wstring::npos);
    }
    load(L"0  c:\\b\r\n0  c:\\c\r\n");
    EXPECT_THROW(click(IDC_FORM3_CMDSORTIE), ProgramEnd);
    EXPECT_EQ(calls(), L"+b");
    // Switched off, it is closed as any.
    load(L"0  c:\\b\r\n0  c:\\c\r\n");
    clickAll({IDM_FORM3_LAISSEROUVERTS, IDC_FORM3_CMDSUIVSAUTER});
    EXPECT_EQ(calls(), L"+b-b+c");
}

TEST_F(Refusals, ReferencesAreLookedForBesideTheDocument) {
    switchOn(L"references");
    load(L"0  c:\\plans\\a\r\n0  c:\\b\r\n0  c\r\n");
    click(IDC_FORM3_CMDSUIVSAUTER);
    const auto journal = takeCalls();
    EXPECT_EQ(journal[0], L"SetCurrentWorkingDirectory(\"c:\\plans\")");
    EXPECT_TRUE(journal[1].starts_with(L"OpenDoc6(&\"c:\\plans\\a\""));
    EXPECT_NE(std::ranges::find(journal, L"SetCurrentWorkingDirectory(\"c:\\\")"), journal.end());
    click(IDM_FORM3_REFERENCES);
    for (const bool byFrame : {false, true}) {
        EXPECT_THROW(byFrame ? window().close() : click(IDC_FORM3_CMDSORTIE), ProgramEnd);
        EXPECT_EQ(takeCalls().back(), L"SetCurrentWorkingDirectory(\"c:\\plans\")");
    }
    // Never changed, it is never set back; and a session that can't doesn't mind.
    loadStates(L"00");
    EXPECT_THROW(window().close(), ProgramEnd);
    EXPECT_EQ(takeCalls(), CallJournal());
    click(IDM_FORM3_REFERENCES);
    machine.automation.overrides[L"SetCurrentWorkingDirectory"] = [](auto) -> Value {
        throw errors::unknownMember(L"SetCurrentWorkingDirectory");
    };
    click(IDC_FORM3_CMDSUIVSAUTER);
    EXPECT_EQ(states(), L"0 3");
    EXPECT_THROW(window().close(), ProgramEnd);
}

namespace {

/// What each document of a long pass does, in turn; most do nothing special.
const struct {
    FakeDocument said;
    const wchar_t* calls;   ///< of its own command
    const char* code;       ///< of its line at the end
    const wchar_t* remark;  ///< its beginning
} kWays[] = {
    {{}, L"+s-", "1", L""},
    {{.opens = false, .errorCode = 65536}, L"+", "0", L"Non ouvert : un document"},
    {{.warningCode = 128}, L"+s", "1", L"Déjà ouvert (128)"},
    {{.saved = std::int32_t{2}}, L"+s-", "1", L"Non enregistré : document en lecture seule (2)"},
    {{.fails = L"ActivateDoc2"}, L"+-", "0", L"Non ouvert : l'appel a échoué (440)"},
    {{.errorCode = 2}, L"+s-", "1", L"Ouvert avec erreur : fichier"},
    {{}, L"+s-", "1", L""},
    {{.opens = false}, L"+", "0", L"Non ouvert : document non rendu (91)"},
    {{.fails = L"OpenDoc6"}, L"+", "0", L"Non ouvert : l'appel a échoué (440)"},
};

struct LongPass : Refusals {
    /// A list of so many documents, each in its way; the first one is plain.
    void loadWays(int count) {
        switchOn(L"passerrefus");
        switchOn(L"laisserouverts");
        std::wstring text;
        for (int i = 0; i < count; ++i) {
            const std::wstring name = std::to_wstring(i);
            machine.automation.documents[name] = way(i).said;
            text += L"0  c:\\" + name + L"\r\n";
        }
        load(text);
    }
    static decltype(kWays[0])& way(int i) {
        return kWays[static_cast<std::size_t>(i) * 7 % std::size(kWays)];
    }
    void goOnToTheEnd() {
        while (canAdvance()) click(IDC_FORM3_CMDSUIV);
    }
};

}  // namespace

TEST_F(LongPass, OfTwoThousandDocumentsGoesAsEachOfThemSays) {
    constexpr int kCount = 2000;
    loadWays(kCount);
    goOnToTheEnd();
    std::wstring expected;
    for (int i = 0; i < kCount; ++i) {
        for (const wchar_t* call = way(i).calls; *call; ++call) {
            expected += *call;
            if (*call != L's') expected += std::to_wstring(i);
        }
        EXPECT_EQ(work().lines[i].code.text(), way(i).code) << i;
        EXPECT_TRUE(remark(i).starts_with(way(i).remark)) << i;
        EXPECT_EQ(remark(i).empty(), !*way(i).remark) << i;
    }
    std::wstring made;
    for (const std::wstring& call : takeCalls()) {
        const std::wstring path = call.substr(call.find(L'\\') + 1);
        if (call.starts_with(L"OpenDoc6(")) made += L"+" + path.substr(0, path.find(L'"'));
        if (call.starts_with(L"closedoc(")) made += L"-" + path.substr(0, path.find(L'"'));
        if (call.find(L"save2") != std::wstring::npos) made += L"s";
    }
    EXPECT_EQ(made, expected);
}

TEST_F(LongPass, KilledAtAnyCallKeepsEveryMarkAndWhatWasSaidOfMarkedLines) {
    loadWays(20);
    struct KilledHere {
        std::map<std::wstring, std::string> records;
        std::vector<WorkLine> lines;
    };
    std::vector<KilledHere> moments;
    machine.automation.beforeEach = [&] {
        moments.push_back({machine.records.contents, {}});
        for (int i = 0; i < 20; ++i) moments.back().lines.push_back(work().lines[i]);
    };
    goOnToTheEnd();
    machine.automation.beforeEach = [] {};
    const auto window = std::move(form);  // its texts are those of the lines
    ASSERT_GT(moments.size(), 60U);
    for (const KilledHere& moment : moments) {
        Pass next(machine.clock);
        const std::string bytes = machine.files.readBytes(machine.programFiles.list);
        next.read(bytes);
        const auto record = moment.records.begin();
        const auto kept = record == moment.records.end()
                              ? std::nullopt
                              : readKeptMarks(record->second, ContentIdentity(bytes), 20);
        if (kept) next.restore(*kept);
        for (int i = 0; i < 20; ++i) {
            const WorkLine& then = moment.lines[static_cast<std::size_t>(i)];
            if (then.code != LineState::Done) continue;
            EXPECT_EQ(next.list().lines[i].code, then.code) << i;
            EXPECT_EQ(next.list().lines[i].history, then.history) << i;
        }
    }
}
