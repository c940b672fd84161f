#include "unit/selection/selection_window_fixture.h"

struct SelectionChoosing : SelectionFixture {
    /// The list holds, in this order, c:\plans\axe.slddrw, c:\plans\Zoe.SLDDRW and
    /// c:\plans\moteur\bielle.SLDDRW.
    SelectionChoosing() {
        load();
        tick(true);
    }

    /// Lines and marks agree, and the counter with them; then the marks.
    std::wstring chosen() {
        for (const auto& line : list().lines) {
            const std::wstring prefix = line.data == 1 ? L" X   " : std::wstring(14, L' ');
            EXPECT_TRUE(line.text.starts_with(prefix + L"c:")) << line.text;
        }
        const std::wstring result = marks();
        EXPECT_EQ(text(IDC_FORM1_NBFICH), std::to_wstring(std::ranges::count(result, L'1')));
        EXPECT_EQ(text(IDC_FORM1_CPTFICHIER), L"3");
        return result;
    }
};

TEST_F(SelectionChoosing, FiltersTheLinesAsTheyAreDisplayed) {
    // The lines chosen beforehand, the depth, the button with its filter, and the marks.
    const std::tuple<std::vector<int>, int, int, const wchar_t*, const wchar_t*> cases[] = {
        {{}, 0, IDC_FORM1_CMD_AJO, L"", L"111"},
        {{1}, 0, IDC_FORM1_CMD_AJO, L"AXE", L"110"},
        {{}, 1, IDC_FORM1_CMD_AJO, L"plans", L"000"},    // hidden by the depth
        {{0}, 0, IDC_FORM1_CMD_AJO, L"      ", L"111"},  // the prefix of unchosen lines
        {{0, 1, 2}, 0, IDC_FORM1_CMD_ENL, L"", L"000"},
        {{0, 1, 2}, 0, IDC_FORM1_CMD_ENL, L"x", L"000"},  // the prefix of chosen lines
        {{1, 2}, 0, IDC_FORM1_CMD_ENL, L"moteur", L"010"},
        {{0, 1, 2}, 2, IDC_FORM1_CMD_ENL, L"moteur", L"111"},  // hidden by the depth
    };
    for (const auto& [before, depth, button, filter, afterwards] : cases) {
        choose(IDC_FORM1_TYPEF, 0);
        for (int i = 0; i < 9; ++i) click(IDC_FORM1_CMDMOINS);
        for (int i = 0; i < depth; ++i) click(IDC_FORM1_CMDPLUS);
        toggle(before);
        control(IDC_FORM1_N_FILTRE).content = filter;
        click(button);
        EXPECT_EQ(marks(), afterwards) << button << ' ' << filter;
    }
}

TEST_F(SelectionChoosing, TogglesTheHighlightedLinesOrAllWhateverTheDepth) {
    toggle({});
    EXPECT_EQ(chosen(), L"000");
    toggle({0, 1});
    toggle({1, 2});
    click(IDC_FORM1_CMDPLUS);
    EXPECT_EQ(list().texts(),
              (Texts{L" X   c:\\..\\axe.slddrw", L"              c:\\..\\Zoe.SLDDRW",
                     L" X   c:\\..\\moteur\\bielle.SLDDRW"}));
    click(IDC_FORM1_CMDPLUS);
    EXPECT_EQ(list().line(2), L" X   c:\\..\\..\\bielle.SLDDRW");
    click(IDC_FORM1_CMDMOINS);
    EXPECT_EQ(list().line(2), L" X   c:\\..\\moteur\\bielle.SLDDRW");
    EXPECT_EQ(chosen(), L"101");
    click(IDC_FORM1_CMD_INV);
    EXPECT_EQ(chosen(), L"010");
}
