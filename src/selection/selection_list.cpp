#include "selection/selection_list.h"

#include <numeric>

#include "common/text.h"
#include "ports/controls.h"
#include "selection/document_search.h"
#include "worklist/list_display.h"

void SelectionList::fill(int depth, const std::function<bool(int line)>& isChosen) {
    depth_ = depth;
    std::vector<int> chosen;
    list_.setLines(found_.count(), [&](int i) {
        const bool choose = isChosen(i);
        if (choose) chosen.push_back(i);
        return lineText(i, choose);
    });
    for (const int line : chosen) list_.setData(line, 1);
}

SelectionList::Entries SelectionList::chosenEntries() const {
    Entries entries;
    for (int i = 0; i < found_.count(); ++i) {
        if (chosen(i)) entries.insert(found_.entry(i));
    }
    return entries;
}

void SelectionList::redraw(int depth) {
    depth_ = depth;
    DrawingPause pause(list_);
    list_.changeTexts([&](int i) { return lineText(i, list_.data(i) != 0); });
    list_.clearSelection();
}

void SelectionList::appendLine(std::wstring& text, int line, bool chosen) const {
    text += chosen ? label::kChosen : label::kToDo;
    addShownPath(text, found_.entry(line), depth_);
}

std::wstring SelectionList::lineText(int line, bool chosen) const {
    std::wstring text;
    appendLine(text, line, chosen);
    return text;
}

int SelectionList::chosenCount() const {
    int chosen = 0;
    for (int i = 0; i < found_.count(); ++i) {
        if (list_.data(i) == 1) ++chosen;
    }
    return chosen;
}

bool SelectionList::chosen(int line) const { return list_.data(line) == 1; }

void SelectionList::toggle(const std::vector<int>& lines) {
    if (lines.empty()) return;
    // Asks the list only once about each line, since it answers slowly.
    std::vector<bool> choose(static_cast<std::size_t>(found_.count()));
    const auto chooses = [&](int line) { return choose[static_cast<std::size_t>(line)]; };
    for (const int line : lines) choose[static_cast<std::size_t>(line)] = !chosen(line);
    const auto mark = [&](bool chosen) {
        for (const int line : lines) {
            if (chooses(line) == chosen) list_.setData(line, chosen);
        }
    };
    DrawingPause pause(list_);
    // A line whose data is zero is changed faster.
    mark(false);
    changeLines(list_, lines, [&](int line) { return lineText(line, chooses(line)); });
    mark(true);
}

void SelectionList::toggleHighlighted() {
    std::vector<int> lines;
    for (int i = 0; i < found_.count(); ++i) {
        if (list_.selected(i)) lines.push_back(i);
    }
    toggle(lines);
}

void SelectionList::toggleAll() {
    std::vector<int> lines(static_cast<std::size_t>(found_.count()));
    std::iota(lines.begin(), lines.end(), 0);
    toggle(lines);
}

std::vector<int> SelectionList::matching(std::wstring_view filter, bool chosen) const {
    const std::wstring folded = upperCase(filter);
    std::vector<int> lines;
    std::wstring text;
    for (int i = 0; i < found_.count(); ++i) {
        text.clear();
        appendLine(text, i, chosen);
        makeUpperCase(text);
        const bool matches = text.find(folded) != std::wstring::npos;
        // Asks the list only about lines that match, since it answers slowly.
        if (matches && (list_.data(i) == 1) == chosen) lines.push_back(i);
    }
    return lines;
}
