#include "unit/tracking/tracking_window_fixture.h"

namespace {

struct ListCommands : TrackingFixture {
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
        const std::wstring path = wideText(work().lines[index].path);
        EXPECT_EQ(shown(), std::to_wstring(index) + L": " + std::to_wstring(index + 1) + L'/' +
                               std::to_wstring(work().last + 1) + L' ' + path);
        EXPECT_EQ(list().selection(), std::vector{index});
        EXPECT_EQ(list().count(), work().last + 1);
        EXPECT_TRUE(list().line(index).ends_with(path));
        EXPECT_TRUE(cad->hasOpen(path));
    }

    /// Two buttons have a text of their own, by one letter.
    void expectWantsALine(int button) {
        const bool other = button == IDC_FORM3_CMDCHARAZ || button == IDC_FORM3_CMDREPA;
        select({});
        click(button);
        const MessageBoxContent& box = machine.boxes.shown.back();
        EXPECT_EQ(box.text, std::wstring(L"Pour cette fonction , il faut avoir sélectionn") +
                                (other ? L"er" : L"é") + L" au moins une ligne ");
        EXPECT_EQ(box.title, L"Manque sélection ");
        EXPECT_EQ(box.helpContext, 1000);
    }
};

/// What each question asks after "Voulez vous vraiment ".
const struct {
    int button;
    const wchar_t *rest, *title;
} kQuestions[] = {
    {IDC_FORM3_CMDCHAF, L"passer les lignes sélectionnées \n\ren mode 'Fait'",
     L"Passage en mode 'F'"},
    {IDC_FORM3_CMDCHAV, L"passer les lignes sélectionnées \n\ren mode 'Vu'",
     L"Passage en mode 'V'"},
    {IDC_FORM3_CMDCHARAZ, L"passer les lignes sélectionnées \n\ren mode 'à traiter'",
     L"Passage en mode 'A Traiter'"},
    {IDC_FORM3_CMDELIF, L"supprimer les fichiers marqués 'F' \n\rparmi les lignes sélectionnées",
     L"Elimination 'F' et 'V' "},
    {IDC_FORM3_CMDELIFV,
     L"supprimer les fichiers marqués 'F' et 'V'\n\rparmi les lignes sélectionnées",
     L"Elimination 'F' et 'V' "},
    {IDC_FORM3_CMDELIV, L"supprimer les fichiers marqués 'V'\n\rparmi les lignes sélectionnées",
     L"Elimination 'V' "},
    {IDC_FORM3_CMDPURGE,
     L"supprimer tous les fichiers marqués 'F' et 'V'\n\r"
     L"sans tenir compte des lignes sélectionnées ? ",
     L"Elimination 'F' et 'V' "},
};

}  // namespace

TEST_F(ListCommands, WantALineAskFirstAndDoNothingWhenTheAnswerIsNo) {
    loadStates(L"10201");
    for (const auto& q : kQuestions) {
        const bool needsSelection = q.button != IDC_FORM3_CMDPURGE;
        select(needsSelection ? std::vector{0, 2, 3} : std::vector<int>{});
        const auto selected = list().selection();
        machine.boxes.shown.clear();
        machine.boxes.answers = {kNo};
        click(q.button);
        ASSERT_EQ(machine.boxes.shown.size(), 1U) << q.title;
        const MessageBoxContent& box = machine.boxes.shown.front();
        EXPECT_EQ(box.text, std::wstring(L"Voulez vous vraiment ") + q.rest);
        EXPECT_EQ(box.title, q.title);
        EXPECT_EQ(box.buttons, MessageBoxContent::Buttons::YesNo) << q.title;
        EXPECT_EQ(box.icon, MessageBoxContent::Icon::Stop) << q.title;
        EXPECT_EQ(box.defaultButton, 2) << q.title;
        EXPECT_EQ(box.helpFile, L"DEMO.HLP");
        EXPECT_EQ(box.helpContext, 1000);
        EXPECT_EQ(states(), L"1 3 2 0 1") << q.title;
        EXPECT_EQ(list().selection(), selected) << q.title;
        EXPECT_EQ(takeCalls(), CallJournal()) << q.title;
        if (needsSelection) expectWantsALine(q.button);
    }
    expectWantsALine(IDC_FORM3_CMDREPA);
    EXPECT_EQ(states(), L"1 3 2 0 1");
}

TEST_F(ListCommands, ChangeOrRemoveLinesAndKeepTheCurrentOneOpen) {
    const struct {
        int button;
        std::vector<int> selected;
        const wchar_t* afterwards;
        int current;
    } cases[] = {
        {IDC_FORM3_CMDCHAF, {0, 1, 2, 3}, L"1 3 1 1 0", 1},
        {IDC_FORM3_CMDCHAV, {0, 1, 4}, L"2 3 2 0 2", 1},
        {IDC_FORM3_CMDCHARAZ, {1, 2}, L"1 3 0 0 0", 1},
        {IDC_FORM3_CMDELIF, {2}, L"1 3 0 0", 1},  // takes seen lines too
        {IDC_FORM3_CMDELIFV, {0, 1, 2, 3, 4}, L"3 0 0", 0},
        {IDC_FORM3_CMDELIV, {0, 1, 2, 3, 4}, L"1 3 0 0", 1},
        {IDC_FORM3_CMDPURGE, {1}, L"3 0 0", 0},
        {IDC_FORM3_CMDREPA, {2}, L"1 0 2 3 0", 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.afterwards);
        loadStates(L"10200");
        command(c.button, c.selected);
        EXPECT_EQ(states(), c.afterwards);
        expectCurrent(c.current);
        // The document is open already unless it is another one; only going back to do brings the
        // application forward.
        const std::size_t calls = c.button == IDC_FORM3_CMDCHARAZ ? 3 : c.current == 3 ? 4 : 0;
        EXPECT_EQ(takeCalls().size(), calls);
    }
}
