#include "contract/contract_ids.h"
#include "contract/machine.h"

namespace {

using Lines = std::vector<int>;

struct ListBoxContract : ContractTest {
    ListBox& several = window.listBox(IDC_CONTRACT_SEVERAL);
    ListBox& one = window.listBox(IDC_CONTRACT_ONE);
};

void fill(ListBox& list, int count) {
    list.setLines(count, [](int i) { return L"ligne " + std::to_wstring(i); });
}

Lines selection(const ListBox& list) {
    Lines result;
    for (int i = 0; i < list.count(); ++i) {
        if (list.selected(i)) result.push_back(i);
    }
    return result;
}

}  // namespace

TEST_F(ListBoxContract, HoldsTheLinesThatItWasGivenLast) {
    const std::wstring lines[] = {L"bz", L"bé", L"ba", L""};  // in this order, not sorted
    for (ListBox* list : {&several, &one}) {
        fill(*list, 20);
        list->select(3, true);
        list->setData(3, 1);
        list->setLines(4, [&](int i) { return lines[i]; });
        EXPECT_EQ(list->count(), 4);
        EXPECT_EQ(selection(*list), Lines());
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(list->line(i), lines[i]);
            EXPECT_EQ(list->data(i), 0);
        }
    }
    // Several lines can be selected at once.
    fill(several, 6);
    for (const int line : {1, 4, 5}) several.select(line, true);
    several.select(5, false);
    EXPECT_EQ(selection(several), (Lines{1, 4}));
    several.clearSelection();
    EXPECT_EQ(selection(several), Lines());
}

TEST_F(ListBoxContract, DoesNotMindALineThatIsNotThere) {
    for (ListBox* list : {&several, &one}) {
        fill(*list, 3);
        list->select(3, true);
        list->setData(3, 7);
        EXPECT_FALSE(list->selected(3));
        EXPECT_EQ(list->data(3), -1);
        EXPECT_EQ(list->line(3), L"");
        EXPECT_EQ(list->count(), 3);
        EXPECT_EQ(selection(*list), Lines());
    }
}

TEST_F(ListBoxContract, ChangedTextLeavesTheRest) {
    for (ListBox* list : {&several, &one}) {
        fill(*list, 4);
        list->select(2, true);
        list->setData(2, 5);
        list->changeText(2, L"autre");
        list->changeText(1, L"une");
        EXPECT_EQ(list->line(1), L"une");
        EXPECT_EQ(list->line(2), L"autre");
        EXPECT_EQ(list->count(), 4);
        list->changeTexts([&](int i) { return list->line(i) + L"s"; });
        EXPECT_EQ(list->line(3), L"ligne 3s");
        EXPECT_EQ(list->line(2), L"autres");
        EXPECT_EQ(selection(*list), Lines{2});
        EXPECT_EQ(list->data(2), 5);
    }
}
