// A redraw in place touches the changed lines only, yet must leave the list box as if every line
// had been replaced: what is selected, and which line is on top.

#include <windows.h>

#include "common/encoding.h"
#include "contract/contract_ids.h"
#include "contract/machine.h"
#include "worklist/list_display.h"
#include "worklist/work_list.h"

namespace {

constexpr int kLines = 200;

struct WorkListDrawing : ContractTest {
    /// A list drawn at depth 0 with some lines selected, scrolled, then changed in two lines.
    void prepare(int topLine) {
        for (int i = 0; i < kLines; ++i) {
            work.lines.edit(i)->code = static_cast<LineState>(i % 3);
            work.lines.edit(i)->path = work.keep("c:\\plans\\sous\\f" + std::to_string(i));
        }
        work.last = kLines - 1;
        view.rebuild(work, 0, false);
        for (const int line : {10, 100, 190}) list.select(line, true);
        SendMessageW(handle, LB_SETTOPINDEX, static_cast<WPARAM>(topLine), 0);
        work.lines.edit(100)->code = LineState::InProgress;
        work.lines.edit(101)->code = LineState::Done;
    }

    /// Every line removed and inserted again, as the rule for a redraw in place has it.
    void replaceEachLine(int depth) {
        const DrawingPause pause(list);
        for (int i = 0; i < kLines; ++i) {
            const WorkLine& line = work.lines[i];
            const auto text = displayLine(i, *labelOf(line.code), wideText(line.path), depth);
            SendMessageW(handle, LB_DELETESTRING, static_cast<WPARAM>(i), 0);
            SendMessageW(handle, LB_INSERTSTRING, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(text.c_str()));
        }
    }

    /// What a user sees of the list, and can tell by the keyboard.
    std::vector<std::wstring> look() const {
        std::vector look{std::to_wstring(SendMessageW(handle, LB_GETTOPINDEX, 0, 0))};
        for (int i = 0; i < list.count(); ++i) {
            look.push_back((list.selected(i) ? L"* " : L"  ") + list.line(i));
        }
        return look;
    }

    HWND handle = GetDlgItem(FindWindowW(L"#32770", L"Contract"), IDC_CONTRACT_SEVERAL);
    ListBox& list = window.listBox(IDC_CONTRACT_SEVERAL);
    WorkListView view{list};
    WorkList work;
};

}  // namespace

TEST_F(WorkListDrawing, LooksAsIfEachLineHadBeenReplaced) {
    for (const int depth : {0, 2}) {
        for (const int top : {0, 1, 50, 95, 101, kLines - 30, kLines - 1}) {
            prepare(top);
            replaceEachLine(depth);
            const auto wanted = look();
            prepare(top);
            view.update(work, depth);
            EXPECT_TRUE(look() == wanted) << "from line " << top << " at depth " << depth;
        }
    }
}

TEST_F(WorkListDrawing, PausedLeavesAHiddenListHidden) {
    list.setVisible(false);
    { const DrawingPause pause(list); }
    EXPECT_FALSE(IsWindowVisible(handle));
}
