#include "unit/selection/selection_window_fixture.h"

using SelectionLoad = SelectionFixture;

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
    EXPECT_EQ(text(IDC_FORM1_NBFICH), L"0");
    EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"2");
    EXPECT_EQ(text(IDC_FORM1_NNIVEAU), L"0");
    for (const int id :
         {IDC_FORM1_FILE1, IDC_FORM1_REP, IDC_FORM1_CDMTEST, IDC_FORM1_S, IDC_FORM1_T}) {
        EXPECT_FALSE(control(id).visible) << id;
    }
}

TEST_F(SelectionLoad, StartsWhereverTheSessionWorks) {
    machine.files.add(L"\\\\serveur\\part\\plans\\r.SLDDRW");
    const struct {
        const wchar_t* workingDirectory;
        const wchar_t* drive;
        Texts found;
    } cases[] = {
        {L"d:\\doc\\", L"d:", {L"d.SLDDRW"}},
        {L"\\\\serveur\\part\\plans", L"", {L"r.SLDDRW"}},
        {L"c:", L"c:", {L"a.SLDDRW"}},
        {L"", L"c:", {L"a.SLDDRW"}},
    };
    for (const auto& c : cases) {
        load(c.workingDirectory);
        EXPECT_EQ(window().comboBox(IDC_FORM1_UNITE).content, c.drive) << c.workingDirectory;
        EXPECT_EQ(unchosen(), c.found) << c.workingDirectory;
    }
}
