// The selection window's filter, on the lines that it shows.

#include "platform/letter_case.h"
#include "rows.h"
#include "sample_tree.h"
#include "selection/form1_ids.h"
#include "selection_window.h"

namespace {

constexpr wchar_t kNowhere[] = L"nulle part";

Comparison compareFilter(const Setting& setting, int documents) {
    const auto directory = flatDirectory(setting.directory, documents);
    SelectionWindow window(directory, true);
    window.form().window().control(IDC_FORM1_N_FILTRE).setText(kNowhere);

    ListBox& list = window.form().window().listBox(IDC_FORM1_LIST1);
    std::vector<std::wstring> folded;
    for (int i = 0; i < list.count(); ++i) folded.push_back(upperCase(list.line(i)));
    const std::wstring wanted = upperCase(kNowhere);

    const auto floor = [&] {
        for (const std::wstring& line : folded) {
            require(line.find(wanted) == std::wstring::npos, "a filter that matches nothing");
        }
    };
    const auto subject = [&] { window.form().cmd_ajo_Click(); };
    const Comparison result = compare(setting.rounds, {floor}, {subject});
    require(window.form().window().control(IDC_FORM1_NBFICH).text() == L"0", "no line chosen");
    return result;
}

}  // namespace

Row filter(const Setting& setting) {
    Row row{.work = "filter that matches nothing, recount included",
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
