// The last mark undone, and the pass that goes on alone.

#include <random>

#include "tracking/alone_ids.h"
#include "unit/tracking/tracking_window_fixture.h"

namespace {

struct Undo : TrackingFixture {
    bool canUndo() { return !window().greyedItems.contains(IDM_FORM3_REVENIR); }
    std::wstring reportLine(int number) {
        machine.fileDialogs.answer = L"c:\\r.csv";
        click(IDM_FORM3_RAPPORT);
        const std::wstring report = machine.files.texts[L"c:\\r.csv"];
        const auto begin = report.find(L'\n' + std::to_wstring(number) + L';') + 1;
        return report.substr(begin, report.find(L'\r', begin) - begin);
    }
};

/// What a pass leaves behind.
struct Trace {
    CallJournal calls;
    std::wstring states, shown, report;

    bool operator==(const Trace&) const = default;
};

struct Alone : TrackingFixture {
    Alone() { machine.automation.revision = L"28.1"; }

    /// Goes on alone; gives what the box at the end says below its first line, in one.
    std::wstring goOn() {
        machine.boxes.answers = {kYes};
        click(IDM_FORM3_SEUL);
        std::wstring text = machine.boxes.shown.back().text;
        for (auto end = text.find(L"\r\n"); end != std::wstring::npos; end = text.find(L"\r\n")) {
            text.replace(end, 2, L" ");
        }
        return text;
    }

    /// The same by hand: what is not saved is skipped, after five refusals it ends.
    void goOnByHand() {
        machine.boxes.whileShown = [&] { machine.boxes.answers = {MessageBoxes::Answer::Cancel}; };
        const auto stays = [&] { return cad->hasOpen(L""); };
        while (canAdvance() && !stays()) {
            const std::size_t boxes = machine.boxes.shown.size();
            click(IDC_FORM3_CMDSUIV);
            const bool refused =
                machine.boxes.shown.size() > boxes &&
                machine.boxes.shown.back().text.find(L"enregistré") != std::wstring::npos;
            if (refused) click(IDC_FORM3_CMDSUIVSAUTER);
        }
        machine.boxes.whileShown = [] {};
    }

    Trace trace() {
        Trace left{takeCalls(), states(), shown(), {}};
        machine.fileDialogs.answer = L"c:\\r.csv";
        click(IDM_FORM3_RAPPORT);
        left.report = machine.files.texts[L"c:\\r.csv"];
        return left;
    }
};

}  // namespace

TEST_F(Undo, OpensTheLineAgainThatTheLastCommandLeft) {
    const struct {
        int button;
        const wchar_t *calls, *report;
    } cases[] = {{IDC_FORM3_CMDSUIV, L"s-a+b-b+a", L"1;En cours;c:\\a;;0;oui;"},
                 {IDC_FORM3_CMDSUIVQUITTER, L"-a+b-b+a", L"1;En cours;c:\\a;;0;;"},
                 {IDC_FORM3_CMDSUIVSAUTER, L"-a+b-b+a", L"1;En cours;c:\\a;;0;;"}};
    for (const auto& c : cases) {
        loadStates(L"010");
        EXPECT_FALSE(canUndo());
        clickAll({c.button, IDC_FORM3_CMDFICHIERLISTE});
        EXPECT_TRUE(canUndo());
        click(IDM_FORM3_REVENIR);
        std::wstring calls = this->calls();
        std::ranges::replace(calls, L'c', L'b');
        EXPECT_EQ(calls, c.calls);
        EXPECT_EQ(states(), L"3 1 0");
        EXPECT_EQ(shown(), L"0: 1/3 c:\\a");
        EXPECT_EQ(list().selection(), std::vector{0});
        EXPECT_EQ(reportLine(1), c.report);
        EXPECT_FALSE(canUndo());
        click(IDM_FORM3_REVENIR);
        EXPECT_EQ(this->calls(), L"");
        // What was saved stays so, whatever it is marked now.
        click(IDC_FORM3_CMDSUIVQUITTER);
        EXPECT_EQ(work().lines[0].history.saved == Saved::Yes, c.button == IDC_FORM3_CMDSUIV);
    }
}

TEST_F(Undo, GoesBackThroughTheWholeRunAcrossItsEnd) {
    loadStates(L"000");
    clickAll({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVSAUTER, IDC_FORM3_CMDSUIVQUITTER});
    EXPECT_FALSE(canAdvance());
    EXPECT_EQ(calls(), L"s-a+b-b+c-c");
    const wchar_t* const steps[][2] = {{L"1 0 3", L"+c"}, {L"1 3 0", L"-c+b"}, {L"3 0 0", L"-b+a"}};
    for (const auto& [after, expected] : steps) {
        click(IDM_FORM3_REVENIR);
        EXPECT_EQ(states(), after);
        EXPECT_EQ(calls(), expected);
        EXPECT_TRUE(canAdvance() && canStepBack());
    }
    EXPECT_FALSE(canUndo());
    // After a kill the marks are as they were left, and there is nothing to undo.
    clickAll({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIV, IDM_FORM3_REVENIR});
    machine.boxes.answers = {kYes};
    start();
    EXPECT_EQ(states(), L"1 3 0");
    EXPECT_FALSE(canUndo());
}

TEST_F(Undo, IsForgottenByAllThatChangesTheList) {
    const struct {
        int button;
        int selected;
        bool forgets;
    } cases[] = {{IDC_FORM3_CMDPRECEDENT, 0, true}, {IDC_FORM3_CMDREPA, 1, true},
                 {IDC_FORM3_CMDCHAF, 3, true},      {IDC_FORM3_CMDCHAF, 0, false},
                 {IDC_FORM3_CMDCHARAZ, 0, true},    {IDC_FORM3_CMDELIF, 0, true},
                 {IDC_FORM3_CMDELIV, 0, false},     {IDC_FORM3_CMDPURGE, 0, true},
                 {IDC_FORM3_CMDPLUS1, 0, false},    {IDC_FORM3_CMDFICHIERLISTE, 0, false}};
    for (const auto& c : cases) {
        loadStates(L"0000");
        clickAll({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIV});
        list().clearSelection();
        list().select(c.selected, true);
        machine.boxes.answers = {kYes};
        click(c.button);
        machine.boxes.answers.clear();
        EXPECT_EQ(canUndo(), !c.forgets) << c.button;
    }
}

TEST_F(Undo, OfALineThatNoLongerOpensGoesOnOrEnds) {
    loadStates(L"0000");
    click(IDC_FORM3_CMDSUIV);
    refuse(L"a");
    EXPECT_EQ(raised([&] { click(IDM_FORM3_REVENIR); }), 91);
    machine.automation.documents.clear();
    switchOn(L"passerrefus");
    loadStates(L"0000");
    clickAll({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIV});
    refuse(L"b");
    takeCalls();
    click(IDM_FORM3_REVENIR);
    EXPECT_EQ(calls(), L"-c+b+c");
    EXPECT_EQ(states(), L"1 0 3 0");
}

TEST_F(Alone, DoesWhatAPersonWouldWhoPressesTheFirstButton) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::mt19937 random(seed);
        const auto oneIn = [&](unsigned n) { return random() % n == 0; };
        std::wstring codes;
        machine.automation.documents.clear();
        for (wchar_t name = L'a'; name <= L'z'; ++name) {
            codes += oneIn(4) ? L'1' : L'0';
            FakeDocument& said = document(std::wstring(1, name).c_str());
            if (oneIn(seed % 2 == 0 ? 2 : 6)) said.opens = false;
            if (oneIn(5)) said.saved = std::int32_t{1};
            if (oneIn(7)) said.warningCode = 128;
        }
        Trace traces[2];
        for (const bool alone : {false, true}) {
            for (const wchar_t* mark : {L"passerrefus", L"gardernonsauve"}) {
                machine.settings.write(L"tarnwick", L"options", mark, L"1");
            }
            machine.settings.write(L"tarnwick", L"options", L"laisserouverts",
                                   seed % 3 == 0 ? L"1" : L"0");
            machine.boxes.answers = {kNo, kNo};
            loadStates(codes);
            machine.boxes.answers.clear();
            if (alone && !window().greyedItems.contains(IDM_FORM3_SEUL)) goOn();
            if (!alone) goOnByHand();
            traces[alone] = trace();
        }
        EXPECT_EQ(traces[0].calls, traces[1].calls) << seed;
        EXPECT_EQ(traces[0], traces[1]) << seed;
    }
}

TEST_F(Alone, AsksForWhatItWillCloseAndTellsWhatBecameOfIt) {
    loadStates(L"100");
    machine.boxes.answers = {kNo};
    click(IDM_FORM3_SEUL);
    EXPECT_EQ(
        machine.boxes.shown.back().text,
        L"Enregistrer et fermer 2 documents l'un après l'autre, jusqu'à la fin de la liste ?");
    EXPECT_EQ(machine.boxes.shown.back().defaultButton, 2);
    EXPECT_EQ(calls(), L"");
    EXPECT_EQ(goOn(), L"Passage terminé. Enregistrés : 2 Non ouverts : 0 Non enregistrés : 0");
    EXPECT_TRUE(window().greyedItems.contains(IDM_FORM3_SEUL));
    click(IDM_FORM3_REVENIR);
    EXPECT_EQ(states(), L"1 1 3");
    machine.boxes.answers = {kNo};
    click(IDM_FORM3_SEUL);
    EXPECT_EQ(machine.boxes.shown.back().text,
              L"Enregistrer et fermer 1 document, jusqu'à la fin de la liste ?");
    // Whatever the marks say, it asks nothing.
    switchOn(L"gardernonsauve");
    loadStates(L"0000");
    document(L"a").saved = false;
    refuse(L"bd");
    EXPECT_EQ(goOn(), L"Passage terminé. Enregistrés : 1 Non ouverts : 2 Non enregistrés : 1");
    EXPECT_EQ(states(), L"0 0 1 0");
    EXPECT_EQ(calls(), L"s-a+b+cs-c+d");
}

TEST_F(Alone, ShowsHowFarItIsAndHoldsTheMachineAwake) {
    loadStates(L"0000");
    refuse(L"b");
    std::vector<std::wstring> shown;
    machine.patience.goesOn = [&] {
        FakeWindow& progress = machine.window(IDD_ALONE);
        EXPECT_TRUE(machine.power.awake && progress.state == FakeWindow::State::Aside);
        machine.clock.milliseconds += 60'000;
        shown.push_back(progress.control(IDC_ALONE_COUNT).content + L' ' +
                        progress.control(IDC_ALONE_DOCUMENT).content + L' ' +
                        progress.control(IDC_ALONE_TIMELEFT).content);
        return true;
    };
    goOn();
    EXPECT_EQ(shown, (std::vector<std::wstring>{
                         L"Document 1 sur 4 c:\\a Temps restant : inconnu",
                         L"Document 3 sur 4 c:\\c Temps restant : environ 2 minutes",
                         L"Document 4 sur 4 c:\\d Temps restant : environ une minute"}));
    EXPECT_FALSE(machine.power.awake);
}

TEST_F(Alone, IsStoppedByTheUserBetweenTwoCommands) {
    switchOn(L"references");
    for (const bool byFrame : {false, true}) {
        loadStates(L"0000");
        int served = 0;
        machine.patience.goesOn = [&] {
            if (++served < 3) return true;
            if (byFrame) throw ProgramEnd{};
            return false;
        };
        if (byFrame) {
            machine.boxes.answers = {kYes};
            EXPECT_THROW(click(IDM_FORM3_SEUL), ProgramEnd);
            EXPECT_EQ(calls(), L"s-ad+bs-bd+cd");
        } else {
            EXPECT_EQ(goOn(),
                      L"Passage interrompu. Enregistrés : 2 Non ouverts : 0 Non enregistrés : 0");
            EXPECT_EQ(calls(), L"s-ad+bs-bd+c");
        }
        EXPECT_EQ(states(), L"1 1 3 0");
        EXPECT_FALSE(machine.power.awake);
    }
}

TEST_F(Alone, StopsByItselfAfterFiveRefusalsOrWhenTheSessionRunsShort) {
    loadStates(L"00000000");
    refuse(L"bcdefg");
    EXPECT_EQ(goOn(),
              L"Passage interrompu. Enregistrés : 1 Non ouverts : 5 Non enregistrés : 0 Cinq "
              L"documents de suite ne se sont pas ouverts.");
    EXPECT_EQ(calls(), L"s-a+b+c+d+e+f");
    EXPECT_EQ(shown(), L"5: 6/8 c:\\f");
    EXPECT_TRUE(window().greyedItems.contains(IDM_FORM3_SEUL));
    EXPECT_TRUE(canAdvance() && canStepBack());
    click(IDM_FORM3_REVENIR);
    EXPECT_EQ(states(), L"3 0 0 0 0 0 0 0");

    machine.automation.documents.clear();
    loadStates(L"000");
    machine.desktop.windows = {{L"SOLIDWORKS Premium 2020 - [a b c]", 7}};
    machine.desktop.gdiObjectsOf = {{7, 8'500}};
    machine.patience.goesOn = [&] { return true; };
    EXPECT_EQ(goOn(), L"Passage terminé. Enregistrés : 3 Non ouverts : 0 Non enregistrés : 0");
    loadStates(L"000");
    machine.automation.overrides[L"save2"] = [&](auto) -> Value {
        machine.desktop.gdiObjectsOf = {{7, 8'501}};
        return std::int32_t{0};
    };
    EXPECT_TRUE(
        goOn().starts_with(L"Passage interrompu. Enregistrés : 1 Non ouverts : 0 Non "
                           L"enregistrés : 0 SolidWorks utilise trop d'objets"));
    EXPECT_EQ(states(), L"1 3 0");
}
