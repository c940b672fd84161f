#include "tracking/work_list_view.h"

#include "common/utf8.h"
#include "platform/controls.h"
#include "worklist/display_line.h"
#include "worklist/state_labels.h"
#include "worklist/work_list.h"

namespace {

const std::wstring kNoLabel;

/// The label of every line in use. A line of unknown state takes the label above it.
std::vector<const std::wstring*> labelsOf(const WorkList& list, const StateLabels& labels,
                                          bool firstDisplay) {
    std::vector<const std::wstring*> result;
    result.reserve(static_cast<std::size_t>(list.lineCount()));
    const std::wstring* label = &kNoLabel;
    for (int i = 0; i <= list.DerFich; ++i) {
        if (firstDisplay && i != 0) {
            label = &labels.LibAFaire;
        } else if (const auto* known = labelOf(labels, list.EtatFich[i].code)) {
            label = known;
        }
        result.push_back(label);
    }
    return result;
}

}  // namespace

void WorkListView::rebuild(const WorkList& list, const StateLabels& labels,
                           const std::wstring& depth, bool firstDisplay) {
    drawnLabels_ = labelsOf(list, labels, firstDisplay);
    drawnDepth_ = depth;
    list_.setLines(list.lineCount(), [&](int i) {
        return displayLine(i, *drawnLabels_[static_cast<std::size_t>(i)],
                           wideText(list.EtatFich[i].path), depth);
    });
}

void WorkListView::update(const WorkList& list, const StateLabels& labels,
                          const std::wstring& depth) {
    auto wanted = labelsOf(list, labels, false);
    const bool allChanged = depth != drawnDepth_;
    DrawingPause pause(list_);
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (!allChanged && wanted[i] == drawnLabels_[i]) continue;
        const int index = static_cast<int>(i);
        const std::wstring path = wideText(list.EtatFich[index].path);
        list_.replaceLine(index, displayLine(index, *wanted[i], path, depth));
    }
    list_.clearSelection();
    drawnLabels_ = std::move(wanted);
    drawnDepth_ = depth;
}
