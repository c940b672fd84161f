#include "unit/tracking/tracking_window_fixture.h"

using Advance = TrackingFixture;

namespace {

/// The calls that open c:\b without a rebuild.
CallJournal opening(const std::wstring& mode) {
    return {L"OpenDoc6(&\"c:\\b\", &0:i2, " + mode + L", \"\", &0:i4, &0:i4)",
            L"ActivateDoc2(&\"c:\\b\", True, &0:i4)",
            L"Visible = True",
            L"b.GetTitle()",
            L"b.GetTitle()",
            L"b.ViewZoomtofit2()"};
}

}  // namespace

TEST_F(Advance, EachButtonAndItsTwinMarkInTheirWay) {
    const struct {
        int button;
        bool saves;
        const wchar_t* afterwards;
    } cases[] = {
        {IDC_FORM3_CMDSUIV, true, L"1 3"},         {IDC_FORM3_CMD1, true, L"1 3"},
        {IDC_FORM3_CMDSUIVQUITTER, false, L"2 3"}, {IDC_FORM3_CMD2, false, L"2 3"},
        {IDC_FORM3_CMDSUIVSAUTER, false, L"0 3"},  {IDC_FORM3_CMD3, false, L"0 3"},
    };
    for (const auto& c : cases) {
        loadStates(L"00");
        click(c.button);
        CallJournal expected = {L"closedoc(\"c:\\a\")"};
        if (c.saves) expected.insert(expected.begin(), L"a.save2(True)");
        const CallJournal next = opening(L"1:i4");
        expected.insert(expected.end(), next.begin(), next.end());
        EXPECT_EQ(takeCalls(), expected) << c.button;
        EXPECT_EQ(states(), c.afterwards) << c.button;
        EXPECT_EQ(list().selection(), std::vector{1}) << c.button;
        EXPECT_EQ(shown(), L"1: 2/2 c:\\b") << c.button;
    }
}

TEST_F(Advance, LowerCaseEndingsKeepTheTypeOfTheDocumentBefore) {
    load(
        L"0  c:\\a.sldprt\r\n0  c:\\b.SLDDRW\r\n0  c:\\c.sldasm\r\n0  c:\\d.SLDASM\r\n"
        L"0  c:\\PRT\r\n0  c:\\e.doc\r\n");
    std::vector<std::wstring> types;
    for (int i = 0; i < 6; ++i) {
        for (const auto& call : takeCalls()) {
            const auto type = call.find(L":i2");
            if (type != std::wstring::npos) types.push_back(call.substr(type - 2, 2));
        }
        click(IDC_FORM3_CMDSUIVSAUTER);
    }
    EXPECT_EQ(types, (std::vector<std::wstring>{L"&0", L"&3", L"&3", L"&2", L"&1", L"&1"}));
}

TEST_F(Advance, LoadsAsTheOptionsSay) {
    const struct {
        const wchar_t* options;  // minimise, silent, first level, all levels
        const wchar_t* mode;
        const wchar_t* rebuilds;
    } cases[] = {{L"0000", L"0:i4", L""},
                 {L"1100", L"1:i4", L""},
                 {L"0010", L"0:i4", L"b.ForceRebuild3(True)"},
                 {L"0111", L"1:i4", L"b.ForceRebuild3(False)"}};
    for (const auto& c : cases) {
        loadStates(L"00");
        const int boxes[] = {IDC_FORM3_CKMINIMISE, IDC_FORM3_CKSILENT, IDC_FORM3_CKRECONS,
                             IDC_FORM3_CKRECONS2};
        for (std::size_t i = 0; i < 4; ++i) {
            window().checkBox(boxes[i]).ticked = c.options[i] == L'1';
        }
        click(IDC_FORM3_CMDSUIVSAUTER);
        CallJournal expected = opening(c.mode);
        if (*c.rebuilds) expected.insert(expected.begin() + 3, c.rebuilds);
        expected.insert(expected.begin(), L"closedoc(\"c:\\a\")");
        EXPECT_EQ(takeCalls(), expected) << c.options;
    }
}
