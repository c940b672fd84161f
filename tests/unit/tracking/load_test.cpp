#include "unit/tracking/tracking_window_fixture.h"

using Load = TrackingFixture;

TEST_F(Load, PutsTheWindowInItsPlaceAndHidesWhatIsNotForTheUser) {
    load(L"0  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(window().topTwips, 300);
    EXPECT_EQ(window().leftTwips, -600);
    EXPECT_FALSE(window().checkBox(IDC_FORM3_CKMINIMISE).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_CMDMEMO).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_NUMFICHCOUR).visible);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"0");
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
        loadStates(c.codes);
        EXPECT_EQ(states(), c.afterwards) << c.codes;
        EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), c.pointer) << c.codes;
        EXPECT_EQ(!cad().hasOpen(L""), c.opened) << c.codes;
        EXPECT_EQ(canAdvance(), c.opened) << c.codes;
        EXPECT_TRUE(canStepBack()) << c.codes;
    }
}

TEST_F(Load, TicksTheOptionsThatWereSaved) {
    const std::pair<const wchar_t*, std::wstring> cases[] = {
        {L"0101", L"0101"}, {L"", L"0000"}, {L"11", L"1100"}, {L"21x1", L"0101"}};
    for (const auto& [saved, expected] : cases) {
        machine.settings.write(L"tarnwick", L"startup", L"RegCheck", saved);
        loadStates(L"00");
        std::wstring ticked;
        for (const int box :
             {IDC_FORM3_CKMINIMISE, IDC_FORM3_CKSILENT, IDC_FORM3_CKRECONS, IDC_FORM3_CKRECONS2})
            ticked += window().checkBox(box).ticked ? L'1' : L'0';
        EXPECT_EQ(ticked, expected) << saved;
    }
}
