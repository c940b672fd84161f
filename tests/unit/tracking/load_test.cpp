#include "unit/tracking/tracking_window_fixture.h"

using Load = TrackingFixture;

TEST_F(Load, PutsTheWindowInItsPlaceAndHidesWhatIsNotForTheUser) {
    load(L"0  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(window().area.corner(), (Point{-40, 20}));
    EXPECT_FALSE(window().checkBox(IDC_FORM3_CKMINIMISE).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_CMDMEMO).visible);
    EXPECT_FALSE(window().control(IDC_FORM3_NUMFICHCOUR).visible);
    EXPECT_EQ(text(IDC_FORM3_NNIVEAU1), L"0");
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
