#include "ports/controls.h"

void changeLines(ListBox& list, const std::vector<int>& lines,
                 const std::function<std::wstring(int)>& line) {
    constexpr std::size_t kMany = 100;
    if (lines.size() < kMany) {
        for (const int index : lines) list.changeText(index, line(index));
        return;
    }
    std::vector<bool> changes(static_cast<std::size_t>(list.count()));
    for (const int index : lines) changes[static_cast<std::size_t>(index)] = true;
    list.changeTexts(
        [&](int i) { return changes[static_cast<std::size_t>(i)] ? line(i) : list.line(i); });
}
