#include "unit/raised.h"
#include "unit/tracking/tracking_window.h"

namespace {

constexpr auto kYes = MessageBoxes::Answer::Yes;
constexpr auto kNo = MessageBoxes::Answer::No;

class ListCommands : public TrackingWindow {
 protected:
    void select(const std::vector<int>& lines) {
        list().clearSelection();
        for (const int line : lines) list().select(line, true);
    }

    /// Selects lines and presses a command's button, saying Yes when it asks.
    void command(int button, const std::vector<int>& lines) {
        select(lines);
        machine.boxes.shown.clear();
        machine.boxes.answers = {kYes};
        click(button);
        machine.boxes.answers.clear();
    }

    /// That this line is the current one in every place that shows it.
    void expectCurrent(int index) {
        const std::wstring& path = module.liste.EtatFich[index].path;
        EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), std::to_wstring(index));
        EXPECT_EQ(text(IDC_FORM3_NBFICH1), std::to_wstring(index + 1));
        EXPECT_EQ(text(IDC_FORM3_CPTFICHIER1), std::to_wstring(module.liste.DerFich + 1));
        EXPECT_EQ(text(IDC_FORM3_TXTETAT), path);
        EXPECT_EQ(list().selection(), std::vector{index});
        EXPECT_EQ(list().count(), module.liste.DerFich + 1);
        EXPECT_TRUE(list().line(index).ends_with(path));
        EXPECT_EQ(module.NomDocCourant, path);
    }

    void expectNoneCurrent() {
        EXPECT_FALSE(canAdvance());
        EXPECT_EQ(text(IDC_FORM3_TXTETAT), L"Aucun");
        EXPECT_TRUE(list().selection().empty());
        EXPECT_EQ(list().count(), module.liste.DerFich + 1);
        EXPECT_EQ(text(IDC_FORM3_CPTFICHIER1), std::to_wstring(module.liste.DerFich + 1));
    }

    void expectHelp(const MessageBoxContent& box) {
        EXPECT_EQ(box.helpFile, L"DEMO.HLP");
        EXPECT_EQ(box.helpContext, 1000);
    }

    /// Opening a document that another one, closed before, made way for.
    static CallJournal opening(const std::wstring& path, const std::wstring& closed) {
        CallJournal calls = {L"OpenDoc6(&\"" + path + L"\", &0:i2, 1:i4, \"\", &0:i4, &0:i4)",
                             L"ActivateDoc2(&\"" + path + L"\", True, &0:i4)", L"Visible = True"};
        if (!closed.empty()) calls.insert(calls.begin(), L"closedoc(\"" + closed + L"\")");
        return calls;
    }
};

const struct {
    int button;
    bool needsSelection;
    const wchar_t* text;
    const wchar_t* title;
} kQuestions[] = {
    {IDC_FORM3_CMDCHAF, true,
     L"Voulez vous vraiment passer les lignes sélectionnées \n\ren mode 'Fait'",
     L"Passage en mode 'F'"},
    {IDC_FORM3_CMDCHAV, true,
     L"Voulez vous vraiment passer les lignes sélectionnées \n\ren mode 'Vu'",
     L"Passage en mode 'V'"},
    {IDC_FORM3_CMDCHARAZ, true,
     L"Voulez vous vraiment passer les lignes sélectionnées \n\ren mode 'à traiter'",
     L"Passage en mode 'A Traiter'"},
    {IDC_FORM3_CMDELIF, true,
     L"Voulez vous vraiment supprimer les fichiers marqués 'F' \n\r"
     L"parmi les lignes sélectionnées",
     L"Elimination 'F' et 'V' "},
    {IDC_FORM3_CMDELIFV, true,
     L"Voulez vous vraiment supprimer les fichiers marqués 'F' et 'V'\n\r"
     L"parmi les lignes sélectionnées",
     L"Elimination 'F' et 'V' "},
    {IDC_FORM3_CMDELIV, true,
     L"Voulez vous vraiment supprimer les fichiers marqués 'V'\n\rparmi les lignes sélectionnées",
     L"Elimination 'V' "},
    {IDC_FORM3_CMDPURGE, false,
     L"Voulez vous vraiment supprimer tous les fichiers marqués 'F' et 'V'\n\r"
     L"sans tenir compte des lignes sélectionnées ? ",
     L"Elimination 'F' et 'V' "},
};

}  // namespace

TEST_F(ListCommands, AskFirstAndDoNothingWhenTheAnswerIsNo) {
    loadStates(L"10201");
    for (const auto& q : kQuestions) {
        select(q.needsSelection ? std::vector{0, 2, 3} : std::vector<int>{});
        const auto selected = list().selection();
        machine.boxes.shown.clear();
        machine.boxes.answers = {kNo};
        click(q.button);
        ASSERT_EQ(machine.boxes.shown.size(), 1U) << q.title;
        const MessageBoxContent& box = machine.boxes.shown.front();
        EXPECT_EQ(box.text, q.text);
        EXPECT_EQ(box.title, q.title);
        EXPECT_EQ(box.buttons, MessageBoxContent::Buttons::YesNo) << q.title;
        EXPECT_EQ(box.icon, MessageBoxContent::Icon::Stop) << q.title;
        EXPECT_EQ(box.defaultButton, 2) << q.title;
        expectHelp(box);
        EXPECT_EQ(states(), L"1 3 2 0 1") << q.title;
        EXPECT_EQ(list().selection(), selected) << q.title;
        EXPECT_EQ(takeCalls(), CallJournal()) << q.title;
    }
}

TEST_F(ListCommands, WantALineSelected) {
    const struct {
        int button;
        const wchar_t* text;
    } cases[] = {
        {IDC_FORM3_CMDCHAF, L"Pour cette fonction , il faut avoir sélectionné au moins une ligne "},
        {IDC_FORM3_CMDCHAV, L"Pour cette fonction , il faut avoir sélectionné au moins une ligne "},
        {IDC_FORM3_CMDELIF, L"Pour cette fonction , il faut avoir sélectionné au moins une ligne "},
        {IDC_FORM3_CMDELIFV,
         L"Pour cette fonction , il faut avoir sélectionné au moins une ligne "},
        {IDC_FORM3_CMDELIV, L"Pour cette fonction , il faut avoir sélectionné au moins une ligne "},
        {IDC_FORM3_CMDCHARAZ,
         L"Pour cette fonction , il faut avoir sélectionner au moins une ligne "},
        {IDC_FORM3_CMDREPA,
         L"Pour cette fonction , il faut avoir sélectionner au moins une ligne "},
    };
    loadStates(L"10201");
    select({});
    for (const auto& c : cases) {
        machine.boxes.shown.clear();
        click(c.button);
        ASSERT_EQ(machine.boxes.shown.size(), 1U) << c.button;
        const MessageBoxContent& box = machine.boxes.shown.front();
        EXPECT_EQ(box.text, c.text) << c.button;
        EXPECT_EQ(box.title, L"Manque sélection ");
        EXPECT_EQ(box.buttons, MessageBoxContent::Buttons::Ok) << c.button;
        EXPECT_EQ(box.icon, MessageBoxContent::Icon::None) << c.button;
        expectHelp(box);
        EXPECT_EQ(states(), L"1 3 2 0 1") << c.button;
        EXPECT_EQ(takeCalls(), CallJournal()) << c.button;
    }
}

TEST_F(ListCommands, ChangeOrRemoveLinesAndKeepTheCurrentOneOpen) {
    const struct {
        int button;
        std::vector<int> selected;
        const wchar_t* afterwards;
        int current;
    } cases[] = {
        {IDC_FORM3_CMDCHAF, {0, 1, 2, 3}, L"1 3 1 1 0", 1},
        {IDC_FORM3_CMDCHAF, {1}, L"1 3 2 0 0", 1},
        {IDC_FORM3_CMDCHAV, {0, 1, 4}, L"2 3 2 0 2", 1},
        {IDC_FORM3_CMDCHARAZ, {1, 2}, L"1 3 0 0 0", 1},
        {IDC_FORM3_CMDELIF, {0, 1, 2, 3, 4}, L"3 0 0", 0},
        {IDC_FORM3_CMDELIF, {2}, L"1 3 0 0", 1},
        {IDC_FORM3_CMDELIFV, {0, 1, 2, 3, 4}, L"3 0 0", 0},
        {IDC_FORM3_CMDELIFV, {1, 3}, L"1 3 2 0 0", 1},
        {IDC_FORM3_CMDELIV, {0, 1, 2, 3, 4}, L"1 3 0 0", 1},
        {IDC_FORM3_CMDELIV, {0}, L"1 3 2 0 0", 1},
        {IDC_FORM3_CMDPURGE, {}, L"3 0 0", 0},
        {IDC_FORM3_CMDPURGE, {1}, L"3 0 0", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.afterwards);
        module.NomDocCourant.clear();
        loadStates(L"10200");
        command(c.button, c.selected);
        EXPECT_EQ(states(), c.afterwards);
        expectCurrent(c.current);
        EXPECT_EQ(module.NomDocCourant, L"c:\\b");
        // Its document is open already; only going back to do brings the application forward.
        EXPECT_EQ(takeCalls().size(), c.button == IDC_FORM3_CMDCHARAZ ? 3U : 0U);
        EXPECT_EQ(machine.boxes.shown.size(), 1U);
        EXPECT_TRUE(canAdvance());
    }
}

TEST_F(ListCommands, BackToDoStartsAgainAtTheTop) {
    loadStates(L"10200");
    command(IDC_FORM3_CMDCHARAZ, {0, 2});
    EXPECT_EQ(states(), L"3 0 0 0 0");
    expectCurrent(0);
    CallJournal expected = opening(L"c:\\a", L"c:\\b");
    expected.insert(expected.end(), {L"a.GetTitle()", L"a.GetTitle()", L"a.ViewZoomtofit2()"});
    EXPECT_EQ(takeCalls(), expected);
}

TEST_F(ListCommands, BackToDoRevivesAPassThatIsOver) {
    loadStates(L"12");
    EXPECT_FALSE(canAdvance());
    command(IDC_FORM3_CMDCHARAZ, {1});
    EXPECT_EQ(states(), L"1 3");
    expectCurrent(1);
    EXPECT_TRUE(canAdvance());
}

TEST_F(ListCommands, TheLineInProgressComesBeforeLinesToDoAboveIt) {
    loadStates(L"000");
    click(IDC_FORM3_CMDSUIVSAUTER);
    EXPECT_EQ(states(), L"0 3 0");
    command(IDC_FORM3_CMDCHAF, {2});
    EXPECT_EQ(states(), L"0 3 1");
    expectCurrent(1);
}

TEST_F(ListCommands, WithoutALineInProgressTheFirstToDoIsOpened) {
    loadStates(L"00");
    click(IDC_FORM3_CMDSUIVSAUTER);
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(states(), L"0 1");
    EXPECT_FALSE(canAdvance());
    takeCalls();
    command(IDC_FORM3_CMDCHAV, {1});
    EXPECT_EQ(states(), L"3 2");
    expectCurrent(0);
    EXPECT_TRUE(canAdvance());
    EXPECT_EQ(takeCalls(), opening(L"c:\\a", L""));
}

TEST_F(ListCommands, WithNothingLeftToDoThePassIsOver) {
    loadStates(L"000");
    for (int i = 0; i < 3; ++i) click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(text(IDC_FORM3_NBFICH1), L"3");
    takeCalls();
    command(IDC_FORM3_CMDELIF, {0, 2});
    EXPECT_EQ(states(), L"1");
    expectNoneCurrent();
    EXPECT_EQ(text(IDC_FORM3_NBFICH1), L"3");
    EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), L"3");
    EXPECT_EQ(takeCalls(), CallJournal());
    click(IDC_FORM3_CMDFICHIERLISTE);
    EXPECT_EQ(machine.files.texts[module.FichListe], L"1  c:\\b\r\n");
}

TEST_F(ListCommands, PurgingAFinishedPassEmptiesTheList) {
    loadStates(L"121");
    command(IDC_FORM3_CMDPURGE, {});
    EXPECT_EQ(module.liste.DerFich, -1);
    expectNoneCurrent();
    // Nothing is there to be selected any more.
    machine.boxes.shown.clear();
    click(IDC_FORM3_CMDREPA);
    EXPECT_EQ(machine.boxes.shown.front().title, L"Manque sélection ");
}

TEST_F(ListCommands, ReloadFlagsStayWhereTheyAre) {
    load(L"11 c:\\a\r\n0  c:\\b\r\n0  c:\\c\r\n");
    command(IDC_FORM3_CMDPURGE, {});
    EXPECT_EQ(states(), L"3 0");
    click(IDC_FORM3_CMDFICHIERLISTE);
    EXPECT_EQ(machine.files.texts[module.FichListe], L"13  c:\\b\r\n0  c:\\c\r\n");
}

TEST_F(ListCommands, NoneWritesTheListFile) {
    loadStates(L"10200");
    const std::wstring before = machine.files.texts[module.FichListe];
    for (const auto& q : kQuestions) command(q.button, {0, 1});
    command(IDC_FORM3_CMDREPA, {0});
    EXPECT_EQ(machine.files.texts[module.FichListe], before);
}

TEST_F(ListCommands, FailWithAFullListThatHasNoLineInProgress) {
    std::wstring listFile;
    for (int i = 0; i < 8001; ++i) listFile += L"1  c:\\a\r\n";
    load(listFile);
    EXPECT_EQ(raised([&] { command(IDC_FORM3_CMDCHAV, {0}); }), 9);
    EXPECT_EQ(module.liste.EtatFich[0].code, L"2");
}

TEST_F(ListCommands, ResumingGoesToTheFirstLineToDoFromTheSelectionOn) {
    const struct {
        std::vector<int> selected;
        const wchar_t* afterwards;
        int current;
    } cases[] = {
        {{4}, L"1 0 2 0 3 0", 4},
        {{2}, L"1 0 2 3 0 0", 3},
        {{0, 4, 5}, L"1 3 2 0 0 0", 1},
        {{1}, L"1 3 2 0 0 0", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.afterwards);
        module.NomDocCourant.clear();
        loadStates(L"102000");
        command(IDC_FORM3_CMDREPA, c.selected);
        EXPECT_TRUE(machine.boxes.shown.empty());
        EXPECT_EQ(states(), c.afterwards);
        expectCurrent(c.current);
        const std::wstring path = module.liste.EtatFich[c.current].path;
        EXPECT_EQ(takeCalls(), c.current == 1 ? CallJournal() : opening(path, L"c:\\b"));
    }
}

TEST_F(ListCommands, ResumingWithNothingToDoBelowOpensTheLastLineAsItIs) {
    loadStates(L"1022");
    command(IDC_FORM3_CMDREPA, {2});
    EXPECT_EQ(states(), L"1 0 2 2");
    expectCurrent(3);
    EXPECT_EQ(takeCalls(), opening(L"c:\\d", L"c:\\b"));
    EXPECT_TRUE(canAdvance());
}

TEST_F(ListCommands, ResumingAFinishedPassLeavesItsButtonsDisabled) {
    loadStates(L"12");
    command(IDC_FORM3_CMDREPA, {0});
    EXPECT_EQ(states(), L"1 2");
    expectCurrent(1);
    EXPECT_FALSE(canAdvance());
}

TEST_F(ListCommands, DeselectingChangesNothingElse) {
    loadStates(L"10200");
    select({0, 2, 4});
    click(IDC_FORM3_CMDDESELECT);
    EXPECT_TRUE(list().selection().empty());
    EXPECT_EQ(states(), L"1 3 2 0 0");
    EXPECT_EQ(list().replacedLines, 0);
    EXPECT_TRUE(machine.boxes.shown.empty());
    EXPECT_EQ(takeCalls(), CallJournal());
}
