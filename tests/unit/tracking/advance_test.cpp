#include "unit/tracking/tracking_window_fixture.h"

using Advance = TrackingFixture;

TEST_F(Advance, EachButtonAndItsTwinMarkInTheirWay) {
    const CallJournal opensNext = {
        L"OpenDoc6(&\"c:\\b\", &0:i2, 1:i4, \"\", &0:i4, &0:i4)",
        L"ActivateDoc2(&\"c:\\b\", True, &0:i4)",
        L"Visible = True",
        L"b.GetTitle()",
        L"b.GetTitle()",
        L"b.ViewZoomtofit2()",
    };
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
        expected.insert(expected.end(), opensNext.begin(), opensNext.end());
        EXPECT_EQ(takeCalls(), expected) << c.button;
        EXPECT_EQ(states(), c.afterwards) << c.button;
        EXPECT_EQ(list().selection(), std::vector{1}) << c.button;
        EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), L"1") << c.button;
        EXPECT_EQ(text(IDC_FORM3_NBFICH1), L"2") << c.button;
        EXPECT_EQ(text(IDC_FORM3_TXTETAT), L"c:\\b") << c.button;
    }
}

TEST_F(Advance, FromTheLastLineToDoEndsTheList) {
    loadStates(L"001");
    click(IDC_FORM3_CMDSUIV);
    takeCalls();
    click(IDC_FORM3_CMDSUIV);
    EXPECT_EQ(takeCalls(), (CallJournal{L"b.save2(True)", L"closedoc(\"c:\\b\")"}));
    EXPECT_EQ(states(), L"1 1 1");
    EXPECT_EQ(text(IDC_FORM3_TXTETAT), L"Aucun");
    EXPECT_EQ(text(IDC_FORM3_NUMFICHCOUR), L"3");
    EXPECT_EQ(text(IDC_FORM3_NBFICH1), L"2");
    EXPECT_EQ(list().texts()[1], L"0002   Fait          c:\\b");
    EXPECT_TRUE(list().selection().empty());
    EXPECT_FALSE(canAdvance());
    EXPECT_TRUE(canStepBack());
    EXPECT_TRUE(cad().hasOpen(L""));
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
        const wchar_t* opens;
        const wchar_t* rebuilds;
    } cases[] = {
        {L"0000", L"OpenDoc6(&\"c:\\b\", &0:i2, 0:i4, \"\", &0:i4, &0:i4)", L""},
        {L"1100", L"OpenDoc6(&\"c:\\b\", &0:i2, 1:i4, \"\", &0:i4, &0:i4)", L""},
        {L"0010", L"OpenDoc6(&\"c:\\b\", &0:i2, 0:i4, \"\", &0:i4, &0:i4)",
         L"b.ForceRebuild3(True)"},
        {L"0111", L"OpenDoc6(&\"c:\\b\", &0:i2, 1:i4, \"\", &0:i4, &0:i4)",
         L"b.ForceRebuild3(False)"},
    };
    for (const auto& c : cases) {
        loadStates(L"00");
        const int boxes[] = {IDC_FORM3_CKMINIMISE, IDC_FORM3_CKSILENT, IDC_FORM3_CKRECONS,
                             IDC_FORM3_CKRECONS2};
        for (std::size_t i = 0; i < 4; ++i) {
            window().checkBox(boxes[i]).ticked = c.options[i] == L'1';
        }
        click(IDC_FORM3_CMDSUIVSAUTER);
        const CallJournal calls = takeCalls();
        EXPECT_EQ(calls[1], c.opens) << c.options;
        EXPECT_EQ(calls[3], L"Visible = True") << c.options;
        const bool rebuilt = calls[4].find(L"ForceRebuild3") != std::wstring::npos;
        EXPECT_EQ(rebuilt ? calls[4] : L"", c.rebuilds) << c.options;
        EXPECT_EQ(calls[rebuilt ? 5 : 4], L"b.GetTitle()") << c.options;
    }
}
