// Commands that change every line of a list.

#include "rows.h"
#include "sample_tree.h"
#include "selection/document_search.h"
#include "selection/selection_ids.h"
#include "selection/selection_list.h"
#include "stage.h"

namespace {

/// All lines at another depth, or all chosen, and back, drawing included, against one repaint.
Comparison compareAllLines(const Setting& setting, int documents,
                           void (*twice)(SelectionList& list)) {
    Stage stage;
    NoEvents events;
    const auto window = stage.platform.windows.create({IDD_FORM1, {}}, events);
    window->show();
    FoundDocuments found;
    fillFound(found, documents);
    SelectionList selection(window->listBox(IDC_FORM1_LIST1), found);
    selection.fill(0, [](int) { return false; });
    HWND list = controlOf(IDC_FORM1_LIST1);
    const auto repaint = [&] {
        RedrawWindow(list, nullptr, nullptr,
                     RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    };
    const auto subject = [&] {
        twice(selection);
        drawNow(list);
    };
    return compare(setting.rounds, {repaint}, {subject});
}

Row measureAllLines(const Setting& setting, const char* work, void (*twice)(SelectionList& list)) {
    Row row{.work = work,
            .floor = "one repaint of the list with its scroll bars",
            .ratios = {},
            .goal = "<= 50 ms",
            .limit = 50};
    for (const int size : setting.sizes) {
        const Comparison compared = compareAllLines(setting, size, twice);
        row.ratios[size] = compared.ratio;
        row.judged = compared.subjectMilliseconds / 2;
        row.note = milliseconds(row.judged) + " each";
    }
    return row;
}

}  // namespace

Row depthOfLines(const Setting& setting) {
    return measureAllLines(setting, "\"+\" and \"-\" on all lines", [](SelectionList& list) {
        list.redraw(1);
        list.redraw(0);
    });
}

Row choiceOfLines(const Setting& setting) {
    return measureAllLines(setting, "all lines chosen, and none", [](SelectionList& list) {
        list.toggleAll();
        list.toggleAll();
    });
}
