#include "contract/contract_ids.h"
#include "contract/machine.h"

using ControlContract = ContractTest;

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
