#include "unit/selection/selection_window_fixture.h"

using SelectionLoad = SelectionFixture;
using SelectionSearch = SelectionFixture;
constexpr auto kYes = MessageBoxes::Answer::Yes;
constexpr auto kNo = MessageBoxes::Answer::No;

TEST_F(SelectionLoad, ShowsTheDrawingsOfTheWorkingDirectory) {
    load();
    EXPECT_EQ(exits.taken, Texts{L"closeSplash"});
    EXPECT_EQ(window().area.corner(), (Point{-40, 20}));
    EXPECT_EQ(types().content, L"*.SLDDRW");
    EXPECT_EQ(types().lines.back(), L"*.SLDPRT ; *.SLDASM ; *.SLDDRW");
    EXPECT_EQ(window().comboBox(IDC_FORM1_UNITE).lines, (Texts{L"c:", L"d:"}));
    EXPECT_EQ(window().listBox(IDC_FORM1_REPERT).texts(),
              (Texts{L"c:\\", L"  plans", L"    moteur"}));
    EXPECT_FALSE(ticked());
    EXPECT_EQ(unchosen(), (Texts{L"axe.slddrw", L"Zoe.SLDDRW"}));
    EXPECT_EQ(text(IDC_FORM1_NBFICH) + text(IDC_FORM1_CPTFICHIER) + text(IDC_FORM1_NNIVEAU),
              L"020");
    for (const int id :
         {IDC_FORM1_FILE1, IDC_FORM1_REP, IDC_FORM1_CDMTEST, IDC_FORM1_S, IDC_FORM1_T}) {
        EXPECT_FALSE(control(id).visible) << id;
    }
}

TEST_F(SelectionLoad, StartsWhereverTheSessionWorks) {
    machine.files.add({L"\\\\serveur\\part\\plans\\r.SLDDRW", L"D:\\Plans\\u.SLDDRW"});
    const std::tuple<const wchar_t*, const wchar_t*, Texts> cases[] = {
        {L"d:\\doc\\", L"d:", {L"d.SLDDRW"}},
        {L"D:\\Plans", L"d:", {L"u.SLDDRW"}},
        {L"\\\\serveur\\part\\plans", L"", {L"r.SLDDRW"}},
        {L"c:", L"c:", {L"a.SLDDRW"}},
        {L"", L"c:", {L"a.SLDDRW"}},
    };
    for (const auto& [workingDirectory, drive, found] : cases) {
        load(workingDirectory);
        EXPECT_EQ(window().comboBox(IDC_FORM1_UNITE).content, drive) << workingDirectory;
        EXPECT_EQ(unchosen(), found) << workingDirectory;
    }
    // Or on the program's directory, where that one does not answer.
    machine.hangUntilEscape();
    load();
    EXPECT_EQ(window().comboBox(IDC_FORM1_UNITE).content, L"c:");
    EXPECT_EQ(window().listBox(IDC_FORM1_REPERT).texts(), (Texts{L"c:\\", L"  tarnwick"}));
}

TEST_F(SelectionSearch, EveryChangeOfAnInputFindsAnewAndChoosesNothing) {
    const std::pair<std::function<void()>, Texts> cases[] = {
        {[&] { type(L"xsldprt"); }, {L"Bras.SLDPRT"}},
        {[&] { choose(IDC_FORM1_TYPEF, 3); }, {L"Bras.SLDPRT", L"corps.SLDASM"}},
        {[&] { choose(IDC_FORM1_TYPEF, 0); }, {L"axe.slddrw", L"Zoe.SLDDRW"}},  // the same again
        {[&] { openDirectory(L"moteur"); }, {L"bielle.SLDDRW"}},
        {[&] { openDirectory(L"c:\\"); }, {L"a.SLDDRW"}},
        {[&] { choose(IDC_FORM1_UNITE, 1); }, {L"d.SLDDRW"}},
        {[&] { tick(true); },
         {L"c:\\plans\\axe.slddrw", L"c:\\plans\\Zoe.SLDDRW", L"c:\\plans\\moteur\\bielle.SLDDRW"}},
    };
    for (const auto& [act, found] : cases) {
        load();
        click(IDC_FORM1_CMD_INV);
        ASSERT_EQ(text(IDC_FORM1_NBFICH), L"2");
        act();
        EXPECT_EQ(unchosen(), found);
        EXPECT_EQ(marks() + text(IDC_FORM1_NBFICH) + text(IDC_FORM1_CPTFICHIER),
                  std::wstring(found.size() + 1, L'0') + std::to_wstring(found.size()));
    }
}

TEST_F(SelectionSearch, IsMadeAnewOnlyInAnotherDirectory) {
    machine.files.directories = {L"c:\\plans\\moteur\\Bielle", L"c:\\plans\\moteur\\arbre",
                                 L"c:\\Zone"};
    load(L"c:\\plans\\moteur\\");
    FakeListBox& tree = window().listBox(IDC_FORM1_REPERT);
    EXPECT_EQ(tree.texts(),
              (Texts{L"c:\\", L"  plans", L"    moteur", L"      arbre", L"      Bielle"}));
    EXPECT_EQ(tree.selection(), std::vector{2});
    click(IDC_FORM1_CMD_INV);
    openDirectory(L"moteur");
    EXPECT_EQ(marks(), L"1");
    for (const wchar_t* name : {L"arbre", L"plans", L"c:\\"}) openDirectory(name);
    EXPECT_EQ(tree.texts(), (Texts{L"c:\\", L"  plans", L"  Zone"}));
}

TEST_F(SelectionSearch, LeavingTheKindsAsTheyAreKeepsWhatIsChosen) {
    load();
    tick(true);
    toggle({0, 2});
    machine.files.texts.erase(L"c:\\plans\\axe.slddrw");
    machine.files.add({L"c:\\plans\\bague.SLDDRW"});
    leaveTypes();
    EXPECT_EQ(list().texts(), (Texts{L"              c:\\plans\\bague.SLDDRW",
                                     L"              c:\\plans\\Zoe.SLDDRW",
                                     L" X   c:\\plans\\moteur\\bielle.SLDDRW"}));
    EXPECT_EQ(marks(), L"001");
    EXPECT_EQ(text(IDC_FORM1_NBFICH), L"1");
    // Another program put in other kinds without a word of it.
    types().content = L"*.SLDDRW ; *.SLDPRT";
    leaveTypes();
    EXPECT_EQ(marks(), L"00000");
}

TEST_F(SelectionSearch, FailsWhenThereAreTooManyDocuments) {
    for (int i = 0; i < 8001; ++i) {
        machine.files.add({L"c:\\n\\" + std::to_wstring(i) + L".slddrw"});
    }
    load(L"c:\\n");
    EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"8001");
    machine.files.add({L"c:\\n\\trop.SLDDRW"});
    const RuntimeError error = raisedError([&] { tick(true); });
    EXPECT_EQ(error.number, 9);
    EXPECT_TRUE(error.text.ends_with(L"\r\nDocuments trouvés : 8001 au plus.")) << error.text;
}

TEST_F(SelectionSearch, AsksBeforeAWholeDriveIsSearched) {
    machine.files.currentDirectories.clear();
    const auto nothing = [] {};
    const auto open = [&] { openDirectory(L"d:\\"); };
    const auto changeDrive = [&] { choose(IDC_FORM1_UNITE, 1); };
    const auto rebuild = [&] {
        type(L"SLDDRW");
        leaveTypes();
        choose(IDC_FORM1_TYPEF, 0);
    };
    // Where sub-directories are asked for, what follows, and what is answered.
    const std::tuple<const wchar_t*, std::function<void()>, std::deque<MessageBoxes::Answer>>
        cases[] = {
            {L"d:\\", nothing, {kYes, kYes}},
            {L"d:\\", nothing, {kNo}},
            {L"d:\\", nothing, {kYes, kNo}},
            {L"d:\\doc", open, {kYes}},
            {L"c:\\plans", changeDrive, {kYes, kYes}},
            {L"c:\\plans", changeDrive, {kYes, kNo}},
            {L"d:\\", rebuild, {kYes, kYes, kYes, kYes, kNo}},
        };
    const Texts whole = {L"d:\\\\b.SLDDRW", L"d:\\doc\\d.SLDDRW"};
    for (const auto& [beginning, act, answers] : cases) {
        SCOPED_TRACE(testing::PrintToString(answers));
        machine.boxes.shown.clear();
        machine.boxes.answers = answers;
        load(beginning);
        tick(true);
        act();
        EXPECT_EQ(machine.boxes.shown.size(), answers.size());
        EXPECT_EQ(ticked(), answers.back() == kYes);
        EXPECT_EQ(unchosen(), ticked() ? whole : Texts{L"b.SLDDRW"});
    }
    leaveTypes();
    openDirectory(L"doc");
    tick(true);
    EXPECT_EQ(machine.boxes.shown.size(), 5U) << "no question elsewhere";
    EXPECT_EQ(machine.boxes.shown.front(),
              (MessageBoxContent{
                  .text = L"    La recherche de tous les fichiers à partir de la racine  \n\r"
                          L"                risque d'être assez longue .\n\r \n\r"
                          L"             Voulez vous quand même continuer ?\n\r",
                  .title = L"Tarnwick Mervale",
                  .buttons = MessageBoxContent::Buttons::YesNo}));
}

TEST_F(SelectionSearch, ListsWhatWasFoundWhenItIsStoppedOrBegunAgain) {
    load();
    machine.serveAfter(L"c:\\plans", [&] { return machine.watch.stop(); });
    tick(true);
    const Texts found = {L"c:\\plans\\axe.slddrw", L"c:\\plans\\Zoe.SLDDRW"};
    EXPECT_EQ(unchosen(), found);
    EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"2");
    EXPECT_EQ(machine.boxes.shown.at(0).title, L"Tarnwick");
    EXPECT_EQ(machine.boxes.takeTexts(),
              Texts{L"Recherche interrompue : la liste est incomplète."});
    leaveTypes();
    EXPECT_EQ(unchosen(), found) << "what was stopped is not searched again";
    machine.serveAfter(L"c:\\plans", [&] {
        EXPECT_EQ(machine.watch.searching, &window().sink);
        return false;
    });
    for (const bool opens : {true, false}) {
        type(L"*.SLDDRW");
        EXPECT_EQ(unchosen(), found);
        EXPECT_EQ(machine.boxes.takeTexts(), Texts());
        // It ended for a directory that is open already, or isn't opened after all.
        const auto before = std::exchange(machine.files.beforeEach, [](const auto&) {});
        if (!opens) machine.hangUntilEscape();
        openDirectory(opens ? L"plans" : L"moteur");
        EXPECT_EQ(list().count(), opens ? 3 : 2);
        EXPECT_EQ(machine.boxes.takeTexts().size(), opens ? 0U : 1U);
        machine.files.beforeEach = before;
    }
}

TEST_F(SelectionSearch, ListsNothingOlderWhenItIsStoppedBeforeItHasReadAnything) {
    load();
    control(IDC_FORM1_LABEL4).content = L"Fichiers";
    std::wstring shown;
    machine.hangUntilEscape([&] {
        shown = text(IDC_FORM1_NBFICH) + L"/" + text(IDC_FORM1_CPTFICHIER) + L" " +
                text(IDC_FORM1_LABEL4);
    });
    type(L"*.SLDPRT");
    EXPECT_EQ(shown, L"0/0 Recherche…");
    EXPECT_EQ(text(IDC_FORM1_LABEL4), L"Fichiers");
    EXPECT_EQ(list().count(), 0);
    EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"0");
    EXPECT_EQ(machine.boxes.shown.size(), 1U);
}

TEST_F(SelectionSearch, StaysWhereItIsWhenTheOpeningOfADriveIsGivenUp) {
    load();
    toggle({0});
    machine.hangUntilEscape();
    for (const bool drive : {true, false}) {
        drive ? choose(IDC_FORM1_UNITE, 1) : openDirectory(L"moteur");
        EXPECT_EQ(window().comboBox(IDC_FORM1_UNITE).content, L"c:");
        EXPECT_EQ(marks(), L"10");
        EXPECT_TRUE(machine.boxes.shown.empty());
    }
}
