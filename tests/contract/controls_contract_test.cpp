#include "contract/contract_ids.h"
#include "contract/machine.h"

using Lines = std::vector<int>;

struct ControlContract : ContractTest {
    ListBox& several = window.listBox(IDC_CONTRACT_SEVERAL);
    ListBox& one = window.listBox(IDC_CONTRACT_ONE);
};

static void fill(ListBox& list, int count) {
    list.setLines(count, [](int i) { return L"ligne " + std::to_wstring(i); });
}

static Lines selection(const ListBox& list) {
    Lines result;
    for (int i = 0; i < list.count(); ++i) {
        if (list.selected(i)) result.push_back(i);
    }
    return result;
}

static Texts texts(const ListBox& list) {
    Texts result;
    for (int i = 0; i < list.count(); ++i) result.push_back(list.line(i));
    return result;
}

TEST_F(ControlContract, ComboBoxShowsTheLineThatIsSelected) {
    const std::wstring lines[] = {L"c:", L"d:", L"c:"};
    for (const int id : {IDC_CONTRACT_TYPED, IDC_CONTRACT_CHOSEN}) {
        ComboBox& box = window.comboBox(id);
        box.setLines(lines);
        EXPECT_EQ(box.selectedLine(), -1) << id;
        for (const int line : {1, 2, -1}) {
            box.selectLine(line);
            EXPECT_EQ(box.selectedLine(), line) << id;
            EXPECT_EQ(box.text(), line < 0 ? L"" : lines[line]) << id;
        }
    }
    window.comboBox(IDC_CONTRACT_TYPED).setText(L"e:");
    EXPECT_EQ(window.comboBox(IDC_CONTRACT_TYPED).text(), L"e:");
}

TEST_F(ControlContract, ChoicesAndPlacesAreThoseThatWereSet) {
    window.checkBox(IDC_CONTRACT_CHECK).setChecked(true);
    EXPECT_TRUE(window.checkBox(IDC_CONTRACT_CHECK).checked());
    TabStrip& tabs = window.tabStrip(IDC_CONTRACT_TABS);
    for (const wchar_t* text : {L"Configurations", L"Répertoires"}) tabs.addTab(text);
    EXPECT_EQ(tabs.selectedTab(), 0);
    tabs.selectTab(1);
    EXPECT_EQ(tabs.selectedTab(), 1);
    for (const Point corner : {Point{198, 94}, Point{0, 0}, Point{-7, 20}}) {
        const Area place = areaAt(corner, {600, 500});
        window.moveTo(place);
        EXPECT_EQ(window.place(), place);
    }
}

TEST_F(ControlContract, ListBoxHoldsTheLinesThatItWasGivenLast) {
    const Texts lines = {L"bz", L"bé", L"ba", L""};  // in this order, not sorted
    for (ListBox* list : {&several, &one}) {
        fill(*list, 20);
        list->select(3, true);
        list->setData(3, 1);
        list->setLines(4, [&](int i) { return lines[static_cast<std::size_t>(i)]; });
        EXPECT_EQ(texts(*list), lines);
        EXPECT_EQ(selection(*list), Lines());
        EXPECT_EQ(list->data(3), 0);
        // It does not mind a line that is not there.
        list->select(4, true);
        list->setData(4, 7);
        EXPECT_FALSE(list->selected(4));
        EXPECT_EQ(list->data(4), -1);
        EXPECT_EQ(list->line(4), L"");
        EXPECT_EQ(texts(*list), lines);
        EXPECT_EQ(selection(*list), Lines());
    }
    // Several lines can be selected at once.
    fill(several, 6);
    for (const int line : {1, 4, 5}) several.select(line, true);
    several.select(5, false);
    EXPECT_EQ(selection(several), (Lines{1, 4}));
    several.clearSelection();
    EXPECT_EQ(selection(several), Lines());
}

TEST_F(ControlContract, ListBoxWhoseTextsChangeKeepsTheRest) {
    for (ListBox* list : {&several, &one}) {
        fill(*list, 4);
        list->select(2, true);
        list->setData(2, 5);
        list->changeText(2, L"autre");
        list->changeText(1, L"une");
        EXPECT_EQ(texts(*list), (Texts{L"ligne 0", L"une", L"autre", L"ligne 3"}));
        list->changeTexts([&](int i) { return list->line(i) + L"s"; });
        EXPECT_EQ(texts(*list), (Texts{L"ligne 0s", L"unes", L"autres", L"ligne 3s"}));
        EXPECT_EQ(selection(*list), Lines{2});
        EXPECT_EQ(list->data(2), 5);
    }
}
