#include "unit/tracking/tracking_window_fixture.h"

using Advance = TrackingFixture;
using StepBack = TrackingFixture;

TEST_F(Advance, EachButtonAndItsTwinMarkInTheirWay) {
    const struct {
        int button, twin;
        bool saves;
        const wchar_t* afterwards;
    } cases[] = {{IDC_FORM3_CMDSUIV, IDC_FORM3_CMD1, true, L"1 3"},
                 {IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMD2, false, L"2 3"},
                 {IDC_FORM3_CMDSUIVSAUTER, IDC_FORM3_CMD3, false, L"0 3"}};
    for (const auto& c : cases) {
        CallJournal expected = openingB();
        expected.insert(expected.begin(), L"closedoc(\"c:\\a\")");
        if (c.saves) expected.insert(expected.begin(), L"a.save2(True)");
        for (const int button : {c.button, c.twin}) {
            loadStates(L"00");
            click(button);
            EXPECT_EQ(takeCalls(), expected) << button;
            EXPECT_EQ(states(), c.afterwards) << button;
            EXPECT_EQ(list().selection(), std::vector{1}) << button;
            EXPECT_EQ(shown(), L"1: 2/2 c:\\b") << button;
        }
    }
}

TEST_F(Advance, LowerCaseEndingsKeepTheTypeOfTheDocumentBefore) {
    load(
        L"0  c:\\a.sldprt\r\n0  c:\\b.SLDDRW\r\n0  c:\\c.sldasm\r\n0  c:\\d.SLDASM\r\n"
        L"0  c:\\PRT\r\n0  c:\\e.doc\r\n");
    std::wstring types;
    for (int i = 0; i < 6; ++i) {
        for (const auto& call : takeCalls()) {
            const auto type = call.find(L":i2");
            if (type != std::wstring::npos) types += call[type - 1];
        }
        click(IDC_FORM3_CMDSUIVSAUTER);
    }
    EXPECT_EQ(types, L"033211");
}

TEST_F(Advance, LoadsAsTheOptionsSay) {
    const struct {
        const wchar_t* options;
        const wchar_t* mode;
        const wchar_t* rebuilds;
    } cases[] = {{L"0000", L"0:i4", L""},
                 {L"1100", L"1:i4", L""},
                 {L"0010", L"0:i4", L"b.ForceRebuild3(True)"},
                 {L"0111", L"1:i4", L"b.ForceRebuild3(False)"}};
    for (const auto& c : cases) {
        loadStates(L"00");
        tickOptions(c.options);
        click(IDC_FORM3_CMDSUIVSAUTER);
        CallJournal expected = openingB(c.mode);
        if (*c.rebuilds) expected.insert(expected.begin() + 3, c.rebuilds);
        expected.insert(expected.begin(), L"closedoc(\"c:\\a\")");
        EXPECT_EQ(takeCalls(), expected) << c.options;
    }
}

TEST_F(StepBack, TakesADocumentOfTheSamePathAsOpen) {
    load(L"0  c:\\Été.SLDPRT\r\n0  C:\\éTÉ.sldprt\r\n");
    click(IDC_FORM3_CMDSUIVSAUTER);
    takeCalls();
    click(IDC_FORM3_CMDPRECEDENT);
    EXPECT_EQ(takeCalls(), (CallJournal{L"closedoc(\"C:\\éTÉ.sldprt\")", L"éTÉ.sldprt.GetTitle()",
                                        L"éTÉ.sldprt.GetTitle()", L"éTÉ.sldprt.ViewZoomtofit2()"}));
    EXPECT_EQ(states(), L"3 0");
}
