#include "tracking/work_list_view.h"

#include <utility>

#include "common/encoding.h"
#include "ports/controls.h"
#include "worklist/list_display.h"
#include "worklist/work_list.h"

namespace {

/// The label of every line in use. A line of unknown state takes the label above it.
std::vector<std::wstring_view> labelsOf(const WorkList& list, bool allToDo) {
    std::vector<std::wstring_view> result;
    result.reserve(static_cast<std::size_t>(list.lineCount()));
    std::wstring_view shown;
    for (int i = 0; i <= list.last; ++i) {
        shown = allToDo && i != 0 ? label::kToDo : labelOf(list.lines[i].code).value_or(shown);
        result.push_back(shown);
    }
    return result;
}

}  // namespace

void WorkListView::rebuild(const WorkList& list, int depth, bool allToDo) {
    drawnLabels_ = labelsOf(list, allToDo);
    drawnDepth_ = depth;
    list_.setLines(list.lineCount(), [&](int i) {
        return displayLine(i, drawnLabels_[static_cast<std::size_t>(i)],
                           wideText(list.lines[i].path), depth);
    });
}

void WorkListView::update(const WorkList& list, int depth) {
    auto wanted = labelsOf(list, false);
    std::vector<int> changed;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (depth != drawnDepth_ || wanted[i] != drawnLabels_[i]) {
            changed.push_back(static_cast<int>(i));
        }
    }
    const auto lineText = [&](int i) {
        return displayLine(i, wanted[static_cast<std::size_t>(i)], wideText(list.lines[i].path),
                           depth);
    };
    DrawingPause pause(list_);
    changeLines(list_, changed, lineText);
    list_.clearSelection();
    drawnLabels_ = std::move(wanted);
    drawnDepth_ = depth;
}
