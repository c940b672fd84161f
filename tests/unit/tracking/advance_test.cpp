#include "unit/tracking/tracking_window_fixture.h"

using Advance = TrackingFixture;
using StepBack = TrackingFixture;

TEST_F(Advance, EachButtonAndItsTwinMarkInTheirWay) {
    const std::tuple<int, int, const wchar_t*> cases[] = {
        {kSave, IDC_FORM3_CMD1, L"s-a+b | 1 3 | 1: 2/2 c:\\b"},
        {kSee, IDC_FORM3_CMD2, L"-a+b | 2 3 | 1: 2/2 c:\\b"},
        {kSkip, IDC_FORM3_CMD3, L"-a+b | 0 3 | 1: 2/2 c:\\b"}};
    for (const auto& [name, twin, outcome] : cases) {
        for (const int button : {name, twin}) {
            loadStates(L"00");
            EXPECT_EQ(after({button}), outcome) << button;
            EXPECT_EQ(list().selection(), std::vector{1}) << button;
        }
    }
}

TEST_F(Advance, LowerCaseEndingsKeepTheTypeOfTheDocumentBefore) {
    load(
        L"0  c:\\a.sldprt\r\n0  c:\\b.SLDDRW\r\n0  c:\\c.sldasm\r\n0  c:\\d.SLDASM\r\n"
        L"0  c:\\PRT\r\n0  c:\\e.doc\r\n");
    for (int i = 0; i < 5; ++i) click(kSkip);
    std::wstring types;
    for (const auto& call : takeCalls()) {
        const auto type = call.find(L":i2");
        if (type != std::wstring::npos) types += call[type - 1];
    }
    EXPECT_EQ(types, L"033211");
}

TEST_F(Advance, LoadsAsTheOptionsSay) {
    const std::tuple<const wchar_t*, const wchar_t*, CallJournal> cases[] = {
        {L"0000", L"0:i4", {}},
        {L"1100", L"1:i4", {}},
        {L"0010", L"0:i4", {L"b.ForceRebuild3(True)"}},
        {L"0111", L"1:i4", {L"b.ForceRebuild3(False)"}}};
    for (const auto& [options, mode, rebuilds] : cases) {
        loadStates(L"00");
        tickOptions(options);
        click(kSkip);
        CallJournal expected = {
            L"closedoc(\"c:\\a\")",
            L"OpenDoc6(&\"c:\\b\", &0:i2, " + std::wstring(mode) + L", \"\", &0:i4, &0:i4)",
            L"ActivateDoc2(&\"c:\\b\", True, &0:i4)",
            L"Visible = True",
            L"b.GetTitle()",
            L"b.GetTitle()",
            L"b.ViewZoomtofit2()"};
        expected.insert(expected.begin() + 4, rebuilds.begin(), rebuilds.end());
        EXPECT_EQ(takeCalls(), expected) << options;
    }
}

TEST_F(StepBack, TakesADocumentOfTheSamePathAsOpen) {
    load(L"0  c:\\Été.SLDPRT\r\n0  C:\\éTÉ.sldprt\r\n");
    click(kSkip);
    takeCalls();
    click(kBack);
    EXPECT_EQ(takeCalls(), (CallJournal{L"closedoc(\"C:\\éTÉ.sldprt\")", L"éTÉ.sldprt.GetTitle()",
                                        L"éTÉ.sldprt.GetTitle()", L"éTÉ.sldprt.ViewZoomtofit2()"}));
    EXPECT_EQ(states(), L"3 0");
}
