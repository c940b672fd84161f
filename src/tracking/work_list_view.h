#pragma once

#include <cstdint>
#include <string>
#include <vector>

class ListBox;
struct StateLabels;
struct WorkList;

/// Draws the work list in a list box and remembers what it drew, so that a redraw in place
/// touches the lines that changed and no others.
class WorkListView {
 public:
    explicit WorkListView(ListBox& list) : list_(list) {}

    /// Draws all lines anew; with `firstDisplay` every line but the first shows as to do.
    void rebuild(const WorkList& list, const StateLabels& labels, const std::wstring& depth,
                 bool firstDisplay);

    /// Leaves the list as if every line had been removed and inserted again in its place:
    /// none is selected.
    void update(const WorkList& list, const StateLabels& labels, const std::wstring& depth);

 private:
    ListBox& list_;
    std::vector<const std::wstring*> drawnLabels_;
    std::wstring drawnDepth_;
};
