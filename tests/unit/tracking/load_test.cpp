#include "unit/raised.h"
#include "unit/tracking/tracking_window.h"

using Load = TrackingWindow;

TEST_F(Load, PutsTheWindowInItsPlaceAndHidesWhatIsNotForTheUser) {
    load(L"0  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(window().topTwips, 300);
    EXPECT_EQ(window().leftTwips, -600);
    EXPECT_FALSE(window().checkBox(IDC_FORM3_CKMINIMISE).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_CMDMEMO).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_NUMFICHCOUR).visible);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"0");
    EXPECT_TRUE(module.FenetreSuiviPrete);
}

TEST_F(Load, OpensTheFirstLineToDo) {
    load(L"1  c:\\a.SLDPRT\r\n0  c:\\b.SLDASM\r\n0  c:\\c.SLDDRW\r\n");
    EXPECT_EQ(takeCalls(), (CallJournal{
                               L"OpenDoc6(&\"c:\\b.SLDASM\", &2:i2, 1:i4, \"\", &0:i4, &0:i4)",
                               L"ActivateDoc2(&\"c:\\b.SLDASM\", True, &0:i4)",
                               L"Visible = True",
                               L"b.SLDASM.GetTitle()",
                               L"b.SLDASM.GetTitle()",
                               L"b.SLDASM.ViewZoomtofit2()",
                           }));
    EXPECT_EQ(states(), L"1 3 0");
    EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), L"1");
    EXPECT_EQ(text(IDC_FORM3_NBFICH1), L"2");
    EXPECT_EQ(text(IDC_FORM3_CPTFICHIER1), L"3");
    EXPECT_EQ(text(IDC_FORM3_TXTETAT), L"c:\\b.SLDASM");
    EXPECT_EQ(list().selection(), std::vector{1});
    EXPECT_EQ(module.NomDocCourant, L"c:\\b.SLDASM");
}

TEST_F(Load, TicksTheOptionsThatWereSaved) {
    const struct {
        const wchar_t* saved;
        bool minimise, silent, recons, recons2;
    } cases[] = {
        {L"1111", true, true, true, true},   {L"0000", false, false, false, false},
        {L"0101", false, true, false, true}, {L"1010", true, false, true, false},
        {L"", false, false, false, false},   {L"11", true, true, false, false},
        {L"21x1", false, true, false, true}, {L"00011", false, false, false, true},
    };
    for (const auto& c : cases) {
        machine.settings.write(L"tarnwick", L"startup", L"RegCheck", c.saved);
        load(L"0  c:\\a\r\n0  c:\\b\r\n");
        EXPECT_EQ(window().checkBox(IDC_FORM3_CKMINIMISE).ticked, c.minimise) << c.saved;
        EXPECT_EQ(window().checkBox(IDC_FORM3_CKSILENT).ticked, c.silent) << c.saved;
        EXPECT_EQ(window().checkBox(IDC_FORM3_CKRECONS).ticked, c.recons) << c.saved;
        EXPECT_EQ(window().checkBox(IDC_FORM3_CKRECONS2).ticked, c.recons2) << c.saved;
    }
}

TEST_F(Load, TicksAllOptionsOnFirstUse) {
    machine.settings.entries.clear();
    loadStates(L"00");
    for (const int box :
         {IDC_FORM3_CKMINIMISE, IDC_FORM3_CKSILENT, IDC_FORM3_CKRECONS, IDC_FORM3_CKRECONS2}) {
        EXPECT_TRUE(window().checkBox(box).ticked) << box;
    }
}

TEST_F(Load, StartsAtTheFirstLineToDoOrInProgress) {
    const struct {
        const wchar_t* codes;
        const wchar_t* afterwards;
        const wchar_t* pointer;
        bool opened;
    } cases[] = {
        {L"00", L"3 0", L"0", true},
        {L"120", L"1 2 3", L"3", false},  // the last line is never opened
        {L"1200", L"1 2 3 0", L"2", true},
        {L"1330", L"1 3 0 0", L"1", true},  // a line left in progress is to do again
        {L"1x00", L"1 x 3 0", L"2", true},
        {L"0", L"3", L"1", false},
        {L"3", L"3", L"1", false},
        {L"12", L"1 2", L"2", false},
        {L"13", L"1 3", L"2", false},
    };
    for (const auto& c : cases) {
        module.NomDocCourant.clear();
        loadStates(c.codes);
        EXPECT_EQ(states(), c.afterwards) << c.codes;
        EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), c.pointer) << c.codes;
        EXPECT_EQ(!module.NomDocCourant.empty(), c.opened) << c.codes;
        EXPECT_EQ(canAdvance(), c.opened) << c.codes;
        EXPECT_TRUE(canStepBack()) << c.codes;
    }
}

TEST_F(Load, WithNothingToOpenShowsTheEndOfTheList) {
    load(L"1  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(takeCalls(), CallJournal());
    EXPECT_EQ(text(IDC_FORM3_TXTETAT), L"Aucun");
    EXPECT_EQ(text(IDC_FORM3_CPTFICHIER1), L"2");
    EXPECT_EQ(text(IDC_FORM3_NBFICH1), L"0");
    EXPECT_TRUE(list().selection().empty());
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(takeCalls(), CallJournal());
    EXPECT_EQ(states(), L"1 3");
}

TEST_F(Load, EndsTheProgramForAnEmptyListFile) {
    EXPECT_THROW(load(L""), ProgramEnd);
    EXPECT_EQ(takeCalls(), CallJournal());
}

TEST_F(Load, FailsWithoutAUsableListFile) {
    EXPECT_EQ(raised([&] { load(L"0  c:\\a\r\n\r\n"); }), 5);
    module.FichListe = L"c:\\ailleurs\\tarnwick.lst";
    Form3 another(module, machine.platform);
    EXPECT_EQ(raised([&] { another.Form_Load(); }), 53);
}

TEST_F(Load, FailsWhenTheDocumentDoesNotOpen) {
    machine.automation.documentsOpen = false;
    EXPECT_EQ(raised([&] { load(L"0  c:\\a\r\n0  c:\\b\r\n"); }), 91);
    EXPECT_EQ(takeCalls().back(), L"Visible = True");
}
