#include "selection/selection_list.h"

#include "platform/controls.h"
#include "platform/letter_case.h"
#include "selection/found_documents.h"
#include "worklist/display_line.h"
#include "worklist/state_labels.h"

void SelectionList::RemplirListe(int mode, const std::wstring& depth) {
    const int count = static_cast<int>(found_.count());
    if (mode == 1) {
        list_.setLines(
            count, [&](int i) { return labels_.LibAFaire + shownPath(found_.entry(i), depth); });
        return;
    }
    DrawingPause pause(list_);
    for (int i = 0; i < count; ++i) {
        const int mark = list_.mark(i);
        const std::wstring& label = mark != 0 ? labels_.LibX : labels_.LibAFaire;
        list_.replaceLine(i, label + shownPath(found_.entry(i), depth));
        list_.setMark(i, mark);
    }
}

long SelectionList::chosenCount() const {
    long chosen = 0;
    for (int i = 0; i < found_.count(); ++i) {
        if (list_.mark(i) == 1) ++chosen;
    }
    return chosen;
}

bool SelectionList::chosen(int line) const { return list_.mark(line) == 1; }

void SelectionList::setChosen(int line, bool chosen) {
    const std::wstring& before = chosen ? labels_.LibAFaire : labels_.LibX;
    const std::wstring& after = chosen ? labels_.LibX : labels_.LibAFaire;
    list_.changeText(line, after + list_.line(line).substr(before.size()));
    list_.setMark(line, chosen ? 1 : 0);
}

void SelectionList::toggleHighlighted() {
    DrawingPause pause(list_);
    for (int i = 0; i < found_.count(); ++i) {
        if (list_.selected(i)) setChosen(i, list_.mark(i) == 0);
    }
}

void SelectionList::toggleAll() {
    DrawingPause pause(list_);
    for (int i = 0; i < found_.count(); ++i) setChosen(i, list_.mark(i) == 0);
}

void SelectionList::setMatching(std::wstring_view filter, bool wanted) {
    const std::wstring folded = upperCase(filter);
    DrawingPause pause(list_);
    for (int i = 0; i < found_.count(); ++i) {
        if (list_.mark(i) != (wanted ? 0 : 1)) continue;
        if (upperCase(list_.line(i)).find(folded) != std::wstring::npos) setChosen(i, wanted);
    }
}
