#include "unit/selection/selection_window_fixture.h"

namespace {

class SelectionChoosing : public SelectionFixture {
 protected:
    /// The list holds, in this order, c:\plans\axe.slddrw, c:\plans\Zoe.SLDDRW and
    /// c:\plans\moteur\bielle.SLDDRW.
    SelectionChoosing() {
        load();
        tick(true);
    }

    /// Lines and marks agree, and the counter with them; then the marks.
    std::wstring chosen() {
        int count = 0;
        for (const auto& line : list().lines) {
            const std::wstring prefix = line.mark == 1 ? L" X   " : std::wstring(14, L' ');
            EXPECT_EQ(line.text.find(L"c:"), prefix.size()) << line.text;
            EXPECT_TRUE(line.text.starts_with(prefix)) << line.text;
            count += line.mark;
        }
        EXPECT_EQ(text(IDC_FORM1_NBFICH), std::to_wstring(count));
        EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"3");
        return marks();
    }
};

}  // namespace

TEST_F(SelectionChoosing, TogglesTheHighlightedLinesOrAll) {
    click(IDC_FORM1_CMDCOCHE);
    EXPECT_EQ(chosen(), L"000");
    highlight({0, 2});
    click(IDC_FORM1_CMDCOCHE);
    EXPECT_EQ(chosen(), L"101");
    EXPECT_EQ(list().texts(),
              (Lines{L" X   c:\\plans\\axe.slddrw", L"              c:\\plans\\Zoe.SLDDRW",
                     L" X   c:\\plans\\moteur\\bielle.SLDDRW"}));
    highlight({0, 1});
    click(IDC_FORM1_CMDCOCHE);
    EXPECT_EQ(chosen(), L"011");
    click(IDC_FORM1_CMD_INV);
    EXPECT_EQ(chosen(), L"100");
}

TEST_F(SelectionChoosing, FiltersTheLinesAsTheyAreDisplayed) {
    const struct {
        const wchar_t* before;  ///< lines chosen beforehand
        int depth;
        int button;
        const wchar_t* filter;
        const wchar_t* afterwards;
    } cases[] = {
        {L"000", 0, IDC_FORM1_CMD_AJO, L"", L"111"},
        {L"010", 0, IDC_FORM1_CMD_AJO, L"AXE", L"110"},
        {L"000", 1, IDC_FORM1_CMD_AJO, L"plans", L"000"},   // hidden by the depth
        {L"100", 0, IDC_FORM1_CMD_AJO, L"      ", L"111"},  // the prefix of unchosen lines
        {L"111", 0, IDC_FORM1_CMD_ENL, L"", L"000"},
        {L"111", 0, IDC_FORM1_CMD_ENL, L"x", L"000"},  // the prefix of chosen lines
        {L"011", 0, IDC_FORM1_CMD_ENL, L"moteur", L"010"},
        {L"111", 2, IDC_FORM1_CMD_ENL, L"moteur", L"111"},  // hidden by the depth
    };
    for (const auto& c : cases) {
        leaveTypes();
        for (int i = 0; i < 9; ++i) click(IDC_FORM1_CMDMOINS);
        for (int i = 0; i < c.depth; ++i) click(IDC_FORM1_CMDPLUS);
        highlight({});
        for (int i = 0; i < 3; ++i) list().select(i, c.before[i] == L'1');
        click(IDC_FORM1_CMDCOCHE);
        filter(c.filter);
        click(c.button);
        EXPECT_EQ(marks(), c.afterwards) << c.before << ' ' << c.button << ' ' << c.filter;
    }
}

TEST_F(SelectionChoosing, TheDepthHidesLevelsAndKeepsTheChoice) {
    highlight({0, 2});
    click(IDC_FORM1_CMDCOCHE);
    click(IDC_FORM1_CMDPLUS);
    EXPECT_EQ(list().texts(),
              (Lines{L" X   c:\\..\\axe.slddrw", L"              c:\\..\\Zoe.SLDDRW",
                     L" X   c:\\..\\moteur\\bielle.SLDDRW"}));
    click(IDC_FORM1_CMDPLUS);
    EXPECT_EQ(list().line(2), L" X   c:\\..\\..\\bielle.SLDDRW");
    EXPECT_EQ(chosen(), L"101");
    click(IDC_FORM1_CMDMOINS);
    EXPECT_EQ(list().line(2), L" X   c:\\..\\moteur\\bielle.SLDDRW");
    // A line can be unchosen whatever the depth.
    click(IDC_FORM1_CMD_INV);
    EXPECT_EQ(chosen(), L"010");
}
