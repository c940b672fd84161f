#pragma once

#include <string_view>
#include <vector>

class ListBox;
struct WorkList;

/// Draws the work list in a list box and remembers what it drew, so that a redraw in place
/// touches the lines that changed and no others.
class WorkListView {
 public:
    explicit WorkListView(ListBox& list) : list_(list) {}

    /// Draws all lines anew; with `allToDo` every line but the first shows as to do.
    void rebuild(const WorkList& list, int depth, bool allToDo);

    /// Leaves the list as if every line had been removed and inserted again in its place:
    /// none is selected.
    void update(const WorkList& list, int depth);

 private:
    ListBox& list_;
    std::vector<std::wstring_view> drawnLabels_;
    int drawnDepth_ = 0;
};
