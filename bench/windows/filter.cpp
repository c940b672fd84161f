// The selection window's filter, on the lines that it shows.

#include "common/text.h"
#include "rows.h"
#include "sample_tree.h"
#include "selection/document_search.h"
#include "selection/selection_ids.h"
#include "selection/selection_list.h"
#include "stage.h"

namespace {

constexpr wchar_t kNowhere[] = L"nulle part";

Comparison compareFilter(const Setting& setting, int documents) {
    Stage stage;
    NoEvents events;
    const auto window = stage.platform.windows.create({IDD_FORM1, {}}, events);
    window->show();
    ListBox& list = window->listBox(IDC_FORM1_LIST1);
    FoundDocuments found;
    fillFound(found, documents);
    SelectionList selection(list, found);
    selection.fill(0, [](int) { return false; });

    std::vector<std::wstring> folded;
    for (int i = 0; i < list.count(); ++i) folded.push_back(upperCase(list.line(i)));
    const std::wstring wanted = upperCase(kNowhere);

    const auto floor = [&] {
        for (const std::wstring& line : folded) {
            require(line.find(wanted) == std::wstring::npos, "a filter that matches nothing");
        }
    };
    const auto subject = [&] { selection.chooseMatching(kNowhere); };
    const Comparison result = compare(setting.rounds, {floor}, {subject});
    require(list.count() == documents && selection.chosenCount() == 0, "no line chosen");
    return result;
}

}  // namespace

Row filter(const Setting& setting) {
    Row row{.work = "filter that matches nothing",
            .floor = "search in texts folded before",
            .ratios = {},
            .goal = "<= 5 ms",
            .limit = 5};
    for (const int size : setting.sizes) {
        const Comparison compared = compareFilter(setting, size);
        row.ratios[size] = compared.ratio;
        row.judged = compared.subjectMilliseconds;
        row.note = milliseconds(compared.subjectMilliseconds) + ", floor " +
                   milliseconds(compared.floorMilliseconds);
    }
    return row;
}
