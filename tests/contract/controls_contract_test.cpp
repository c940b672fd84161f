#include <gtest/gtest.h>

#include "contract/contract_ids.h"
#include "contract/machine.h"

namespace {

class ControlContract : public testing::Test {
 protected:
    std::unique_ptr<Machine> machine = makeMachine();
    Window& window = machine->window();
};

/// A control of each kind, as the kind that it is.
std::vector<std::pair<int, Control*>> anyControl(Window& window) {
    return {{IDC_CONTRACT_LABEL, &window.control(IDC_CONTRACT_LABEL)},
            {IDC_CONTRACT_FIELD, &window.control(IDC_CONTRACT_FIELD)},
            {IDC_CONTRACT_BUTTON, &window.control(IDC_CONTRACT_BUTTON)},
            {IDC_CONTRACT_CHECK, &window.checkBox(IDC_CONTRACT_CHECK)},
            {IDC_CONTRACT_SEVERAL, &window.listBox(IDC_CONTRACT_SEVERAL)},
            {IDC_CONTRACT_TYPED, &window.comboBox(IDC_CONTRACT_TYPED)}};
}

}  // namespace

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
        box.selectLine(1);
        EXPECT_EQ(box.selectedLine(), 1) << id;
        EXPECT_EQ(box.text(), L"d:") << id;
        box.selectLine(2);
        EXPECT_EQ(box.selectedLine(), 2) << id;
        box.selectLine(-1);
        EXPECT_EQ(box.selectedLine(), -1) << id;
        EXPECT_EQ(box.text(), L"") << id;
    }
}

TEST_F(ControlContract, TabStripSelectsATab) {
    TabStrip& tabs = window.tabStrip(IDC_CONTRACT_TABS);
    for (const wchar_t* text : {L"Configurations", L"Répertoires", L"SolidWorks"})
        tabs.addTab(text);
    EXPECT_EQ(tabs.selectedTab(), 0);
    tabs.selectTab(2);
    EXPECT_EQ(tabs.selectedTab(), 2);
    EXPECT_EQ(machine->eventsRaised(), 0);
}

TEST_F(ControlContract, CanBeHiddenAndDisabled) {
    for (const auto& [id, control] : anyControl(window)) {
        EXPECT_TRUE(machine->isVisible(id) && machine->isEnabled(id)) << id;
        control->setVisible(false);
        control->setEnabled(false);
        control->repaint();
        EXPECT_FALSE(machine->isVisible(id) || machine->isEnabled(id)) << id;
        control->setVisible(true);
        control->setEnabled(true);
        EXPECT_TRUE(machine->isVisible(id) && machine->isEnabled(id)) << id;
    }
}

TEST_F(ControlContract, ChangedByCodeRaisesNoEvent) {
    const std::wstring lines[] = {L"a", L"b"};
    window.control(IDC_CONTRACT_FIELD).setText(L"x");
    window.checkBox(IDC_CONTRACT_CHECK).setChecked(true);
    for (const int id : {IDC_CONTRACT_TYPED, IDC_CONTRACT_CHOSEN}) {
        window.comboBox(id).setLines(lines);
        window.comboBox(id).selectLine(1);
        window.comboBox(id).selectLine(-1);
    }
    window.comboBox(IDC_CONTRACT_TYPED).setText(L"c");
    for (const int id : {IDC_CONTRACT_ONE, IDC_CONTRACT_SEVERAL}) {
        ListBox& list = window.listBox(id);
        list.setLines(2, [&](int i) { return lines[i]; });
        list.select(1, true);
        list.replaceLine(1, L"c");
        list.changeText(0, L"d");
        list.clearSelection();
    }
    EXPECT_EQ(machine->eventsRaised(), 0);
}

TEST_F(ControlContract, WindowStandsWhereItIsPut) {
    constexpr int kPixel = 15;
    for (const auto& [top, left] : {std::pair(1416, 2964), std::pair(0, 0), std::pair(300, 15)}) {
        window.moveTo(top, left);
        EXPECT_NEAR(window.top(), top, kPixel);
        EXPECT_NEAR(window.left(), left, kPixel);
    }
}
