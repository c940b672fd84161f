#include "unit/tracking/tracking_window_fixture.h"

using Content = MessageBoxContent;

struct ListCommands : TrackingFixture {
    /// The only box that the button shows for these lines, answered No.
    Content box(int button, const std::vector<int>& lines) {
        select(lines);
        machine.boxes.shown.clear();
        machine.boxes.answers = {kNo};
        click(button);
        machine.boxes.answers.clear();
        EXPECT_EQ(machine.boxes.shown.size(), 1U) << button;
        EXPECT_EQ(list().selection(), lines) << button;
        return machine.boxes.shown.empty() ? Content() : machine.boxes.shown.front();
    }

    /// Two buttons have a text of their own, by one letter.
    void expectWantsALine(int button) {
        const bool other = button == kReset || button == kResume;
        EXPECT_EQ(box(button, {}),
                  (Content{.text = std::wstring(L"Pour cette fonction , il faut avoir sélectionn") +
                                   (other ? L"er" : L"é") + L" au moins une ligne ",
                           .title = L"Manque sélection ",
                           .helpFile = L"DEMO.HLP",
                           .helpContext = 1000}))
            << button;
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

TEST_F(ListCommands, WantALineAskFirstAndDoNothingWhenTheAnswerIsNo) {
    loadStates(L"10201");
    for (const auto& q : kQuestions) {
        const bool needsSelection = q.button != IDC_FORM3_CMDPURGE;
        EXPECT_EQ(box(q.button, needsSelection ? std::vector{0, 2, 3} : std::vector<int>{}),
                  (Content{.text = std::wstring(L"Voulez vous vraiment ") + q.rest,
                           .title = q.title,
                           .buttons = Content::Buttons::YesNo,
                           .icon = Content::Icon::Stop,
                           .defaultButton = 2,
                           .helpFile = L"DEMO.HLP",
                           .helpContext = 1000}))
            << q.title;
        EXPECT_EQ(states(), L"1 3 2 0 1") << q.title;
        EXPECT_EQ(takeCalls(), CallJournal()) << q.title;
        if (needsSelection) expectWantsALine(q.button);
    }
    expectWantsALine(kResume);
}

TEST_F(ListCommands, ChangeOrRemoveLinesAndKeepTheCurrentOneOpen) {
    // The list, the button, the selected lines, what is after it, and how many calls it makes.
    const std::tuple<const wchar_t*, int, std::vector<int>, const wchar_t*, std::size_t> cases[] = {
        {L"10200", IDC_FORM3_CMDCHAF, {0, 1, 2, 3}, L" | 1 3 1 1 0 | 1: 2/5 c:\\b", 0},
        {L"10200", IDC_FORM3_CMDCHAV, {0, 1, 4}, L" | 2 3 2 0 2 | 1: 2/5 c:\\b", 0},
        // Only going back to do brings the application forward.
        {L"10200", kReset, {1, 2}, L" | 1 3 0 0 0 | 1: 2/5 c:\\b", 3},
        // Takes seen lines, too.
        {L"10200", IDC_FORM3_CMDELIF, {2}, L" | 1 3 0 0 | 1: 2/4 c:\\b", 0},
        {L"10200", IDC_FORM3_CMDELIFV, {0, 1, 2, 3, 4}, L" | 3 0 0 | 0: 1/3 c:\\b", 0},
        {L"10200", IDC_FORM3_CMDELIV, {0, 1, 2, 3, 4}, L" | 1 3 0 0 | 1: 2/4 c:\\b", 0},
        {L"10200", IDC_FORM3_CMDPURGE, {1}, L" | 3 0 0 | 0: 1/3 c:\\b", 0},
        {L"10200", kResume, {2}, L" | 1 0 2 3 0 | 3: 4/5 c:\\d", 4},
        {L"10200", kReset, {0, 2}, L" | 3 0 0 0 0 | 0: 1/5 c:\\a", 7},
        {L"102002", kResume, {1}, L" | 1 3 2 0 0 2 | 1: 2/6 c:\\b", 0},
        {L"102002", kResume, {5}, L" | 1 0 2 0 0 2 | 5: 6/6 c:\\f", 4},  // the last line, as it is
        {L"x00", IDC_FORM3_CMDCHAV, {0}, L" | 2 3 0 | 1: 2/3 c:\\b", 0},
    };
    for (const auto& [codes, button, lines, outcome, calls] : cases) {
        SCOPED_TRACE(outcome);
        loadStates(codes);
        command(button, lines);
        EXPECT_EQ(takeCalls().size(), calls);
        EXPECT_EQ(after({}), outcome);
        const std::wstring current = text(IDC_FORM3_TXTETAT);
        EXPECT_TRUE(cad->hasOpen(current));
        ASSERT_EQ(list().selection().size(), 1U);
        EXPECT_TRUE(list().line(list().selection()[0]).ends_with(current));
        EXPECT_EQ(list().count(), work().last + 1);
    }
    for (const auto& [codes, button, outcome] :
         {std::tuple(L"1122", IDC_FORM3_CMDELIV, L" | 1 1 | 4: 0/2 Aucun"),
          {L"12", IDC_FORM3_CMDPURGE, L" |  | 2: 0/0 Aucun"}}) {
        loadStates(codes);
        command(button, {1, 2, 3});
        EXPECT_EQ(after({}), outcome);
    }
}
