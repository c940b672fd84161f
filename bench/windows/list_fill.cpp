// The work list's lines put into the tracking window's list box.

#include "common/encoding.h"
#include "rows.h"
#include "sample_tree.h"
#include "stage.h"
#include "tracking/tracking_ids.h"
#include "worklist/list_display.h"
#include "worklist/work_list.h"

namespace {

void bareFill(HWND list, const std::vector<std::wstring>& lines) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (const std::wstring& line : lines) {
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

Comparison compareFill(const Setting& setting, int count) {
    Stage stage;
    NoEvents events;
    const auto window = stage.platform.windows.create({IDD_FORM3, {}}, events);
    window->show();
    HWND list = controlOf(IDC_FORM3_LIST1);

    WorkList work;
    std::vector<std::wstring> lines;
    const std::vector<std::wstring> paths = samplePaths(count);
    for (const std::wstring& path : paths) {
        const int i = static_cast<int>(lines.size());
        std::string utf8;
        appendUtf8(utf8, path);
        work.lines.edit(i)->code = LineState::ToDo;
        work.lines.edit(i)->path = work.keep(std::move(utf8));
        lines.push_back(displayLine(i, label::kToDo, path, 0));
    }
    work.last = count - 1;

    WorkListView view(window->listBox(IDC_FORM3_LIST1));
    const auto emptied = [&] { SendMessageW(list, LB_RESETCONTENT, 0, 0); };
    const auto subject = [&] { view.rebuild(work, 0, false); };
    const Comparison result =
        compare(setting.rounds, {[&] { bareFill(list, lines); }, emptied}, {subject, emptied});
    require(window->listBox(IDC_FORM3_LIST1).line(count - 1) == lines.back(), "the list's lines");
    return result;
}

}  // namespace

Row listFill(const Setting& setting) {
    Row row{.work = "filling the list box",
            .floor = "LB_ADDSTRING, drawing off",
            .ratios = {},
            .goal = "<= 1.30",
            .limit = 1.30};
    for (const int size : setting.sizes) {
        const Comparison compared = compareFill(setting, size);
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    return row;
}
