#include "contract/contract_ids.h"
#include "contract/machine.h"

using ControlContract = ContractTest;

TEST_F(ControlContract, TextIsReadBackAsItWasSet) {
    for (const int id : {IDC_CONTRACT_LABEL, IDC_CONTRACT_FIELD, IDC_CONTRACT_BUTTON}) {
        Control& control = window.control(id);
        for (const std::wstring& text :
             {std::wstring(L"1-Sauver+Suiv >>"), std::wstring(L"&Été && \"œuvre\"  "),
              std::wstring(), std::wstring(L"\U0001F527"), std::wstring(2000, L'x')}) {
            control.setText(text);
            EXPECT_EQ(control.text(), text) << id;
        }
    }
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
