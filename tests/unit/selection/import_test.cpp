#include "unit/selection/selection_window_fixture.h"

constexpr wchar_t kFile[] = L"c:\\listes\\ordre.csv";

struct SelectionImport : SelectionFixture {
    SelectionImport() { load(); }

    void import(const std::wstring& text, const std::wstring& file = kFile) {
        machine.files.texts[file] = text;
        machine.fileDialogs.answer = file;
        click(IDM_FORM1_IMPORTER);
    }
    /// The text of the only box shown since this was asked last.
    std::wstring box() {
        const Texts texts = machine.boxes.takeTexts();
        EXPECT_EQ(texts.size(), 1U);
        return texts.empty() ? L"" : texts.back();
    }
    void expectUnchanged() {
        EXPECT_EQ(unchosen(), (Texts{L"axe.slddrw", L"Zoe.SLDDRW"}));
        EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"2");
    }
    std::wstring written() { return machine.files.texts[machine.programFiles.list]; }
};

TEST_F(SelectionImport, DocumentsThatAreThereBecomeTheListAllChosen) {
    import(
        L"N°;Etat;Document\r\n1;Fait;..\\plans\\Zoe.SLDDRW\r\n2;Vu;\"c:\\plans\\Bras."
        L"SLDPRT\"\r\n\r\n"
        L"C:\\PLANS\\x\\..\\ZOE.slddrw;\r\nabsent.sldprt\r\nnotes.txt;12\r\n");
    EXPECT_EQ(list().texts(),
              (Texts{L" X   c:\\plans\\Zoe.SLDDRW", L" X   c:\\plans\\Bras.SLDPRT"}));
    EXPECT_EQ(text(IDC_FORM1_NBFICH) + L"/" + text(IDC_FORM1_CPTFICHIER), L"2/2");
    EXPECT_EQ(box(),
              L"2 lignes laissées de côté :\r\nabsent.sldprt : introuvable\r\n"
              L"notes.txt;12 : n'est pas un document SolidWorks\r\n1 ligne déjà dans la liste.");
    EXPECT_FALSE(ticked());
    leaveTypes();
    EXPECT_EQ(marks(), L"11") << "nothing is lost by passing through the field";
    click(IDM_FORM1_ORDRE);
    EXPECT_EQ(machine.settings.read(L"tarnwick", L"options", L"ordre", L""), L"1");
    click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(written(), L"0  c:\\plans\\Bras.SLDPRT\r\n0  c:\\plans\\Zoe.SLDDRW\r\n");
    type(L"*.SLDPRT");
    EXPECT_EQ(unchosen(), Texts{L"Bras.SLDPRT"}) << "the next search replaces it as ever";
}

TEST_F(SelectionImport, WhatCantBeImportedLeavesTheListAsItWas) {
    std::wstring tooMany;
    for (int i = 0; i <= FoundDocuments::kCapacity; ++i) {
        const std::wstring name = std::to_wstring(i) + L".sldprt";
        machine.files.add({L"c:\\n\\" + name});
        tooMany += L"c:\\n\\" + name + L"\n";
    }
    const std::pair<std::wstring, const wchar_t*> cases[] = {
        {tooMany, L"plus de 8001 documents"},
        {std::wstring(L"PK\0\0", 4), L"format CSV.\r\nc:\\listes\\ordre.csv\r\n"},
        {std::wstring((16U << 20) + 1, L'x'), L"16 Mo au plus.\r\nc:\\listes\\ordre.csv\r\n"},
        {L"a.sldprt\r\nb.sldprt", L"2 lignes laissées de côté :"},
        {std::wstring(250, L'a') + L".sldprt", L"aa.sldprt : introuvable\r\n"},
        {L"\r\n", L"Aucun document à importer."},
    };
    for (const auto& [imported, told] : cases) {
        import(imported);
        const std::wstring text = box();
        EXPECT_TRUE(has(text, told)) << text.substr(0, 200);
        EXPECT_TRUE(text.ends_with(L"\r\nLa liste reste comme elle était.")) << told;
        expectUnchanged();
    }
}

TEST_F(SelectionImport, AFaultThatPassesLeavesNothingOut) {
    machine.files.failing = {
        {kFile, 1}, {L"c:\\plans\\axe.slddrw", 1}, {L"c:\\plans\\Zoe.SLDDRW", 9}};
    import(L"c:\\plans\\axe.slddrw\r\nc:\\plans\\Zoe.SLDDRW\r\n");
    EXPECT_EQ(list().texts(), Texts{L" X   c:\\plans\\axe.slddrw"});
    EXPECT_EQ(box(), L"1 ligne laissée de côté :\r\nc:\\plans\\Zoe.SLDDRW : inaccessible");
    machine.files.failing = {{kFile, 9}};
    import(L"c:\\plans\\axe.slddrw");
    EXPECT_TRUE(has(box(), kFile));
    // What can't be displayed ends the program as it does after a search.
    click(IDC_FORM1_CMDPLUS);
    std::wstring deep = L"c:";
    while (deep.size() < 40) deep += L"\\a";
    machine.files.add({deep + L".sldprt"});
    EXPECT_EQ(raised([&] { import(deep + L".sldprt", L"c:\\l.txt"); }), 9);
}

TEST_F(SelectionImport, AsksBeforeItLooksOnServersThatNobodyUses) {
    machine.files.add(
        {L"\\\\ici\\a\\1.sldprt", L"\\\\Autre\\a\\2.sldprt", L"\\\\DISQUE\\a\\3.sldprt"});
    machine.files.driveShares = {L"\\\\disque\\commun"};
    Texts looked;
    machine.files.beforeEach = [&](const std::wstring& path) { looked.push_back(path); };
    const auto importAll = [&](MessageBoxes::Answer answer) {
        machine.boxes.shown.clear();
        machine.boxes.answers = {answer};
        looked.clear();
        import(L"..\\1.sldprt\n\\\\?\\unc\\Autre\\a\\2.sldprt\n//DISQUE/a/3.sldprt",
               L"\\\\ici\\a\\listes\\l.txt");
    };
    importAll(MessageBoxes::Answer::No);
    ASSERT_EQ(machine.boxes.shown.size(), 2U);
    const MessageBoxContent& question = machine.boxes.shown[0];
    EXPECT_EQ(question.defaultButton, 2);
    EXPECT_TRUE(has(question.text, L"\r\n\\\\AUTRE\r\n") && !has(question.text, L"DISQUE"));
    EXPECT_EQ(looked, (Texts{L"\\\\ici\\a\\1.sldprt", L"\\\\DISQUE\\a\\3.sldprt"}));
    EXPECT_EQ(list().count(), 2);
    importAll(MessageBoxes::Answer::Yes);
    EXPECT_EQ(list().count(), 3);
}

TEST_F(SelectionImport, StoppedItChangesNothing) {
    machine.files.texts[kFile] = L"";
    // First both are looked at, then the file is read.
    machine.watch.goesOn = [&, times = 0]() mutable { return ++times < 3 || machine.watch.stop(); };
    window().drop({L"c:\\plans\\axe.slddrw", kFile});
    machine.hangUntilEscape();
    import(L"c:\\plans\\axe.slddrw");
    EXPECT_EQ(machine.boxes.takeTexts(),
              Texts(2, L"Importation interrompue.\r\nLa liste reste comme elle était."));
    expectUnchanged();
}

TEST_F(SelectionImport, WhatIsDroppedComesInItsOrder) {
    machine.files.texts[L"c:\\l.lst"] = L"0  c:\\a.SLDDRW\r\n0  \\\\serveur";
    machine.files.add({L"c:\\x.pdf", L"c:\\m.sldasm\\b.SLDASM", L"c:\\m.sldasm\\c.SLDPRT"});
    machine.files.add({L"\\\\s\\p\\d.SLDPRT"});
    machine.files.failing = {{L"c:\\m.sldasm", 1}, {L"\\\\s\\p", 9}};
    window().drop({L"c:\\plans\\Zoe.SLDDRW", L"c:\\l.lst", L"c:\\m.sldasm", L"c:\\x.pdf",
                   L"c:\\a.SLDDRW", L"\\\\s\\p", L"c:\\y.pdf"});
    EXPECT_EQ(list().texts(), (Texts{L" X   c:\\plans\\Zoe.SLDDRW", L" X   c:\\a.SLDDRW",
                                     L" X   c:\\m.sldasm\\b.SLDASM", L" X   c:\\m.sldasm\\c.SLDPRT",
                                     L" X   \\\\s\\p\\d.SLDPRT"}));
    EXPECT_EQ(box(),
              L"3 lignes laissées de côté :\r\n\\\\serveur : introuvable\r\n"
              L"c:\\x.pdf : n'est pas un document SolidWorks\r\nc:\\y.pdf : introuvable\r\n"
              L"1 ligne déjà dans la liste.");
    machine.serveAfter(L"c:\\plans\\moteur", [&] { return machine.watch.stop(); });
    window().drop({L"c:\\plans", L"d:\\doc"});
    EXPECT_EQ(list().count(), 6) << "what was found until then";
    EXPECT_EQ(list().line(0), L" X   c:\\plans\\axe.slddrw");
    EXPECT_EQ(box(), L"Recherche interrompue : la liste est incomplète.");
}
