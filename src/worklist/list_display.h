#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "worklist/work_list.h"

class Control;
class ListBox;

/// What stands before a path in the lists. The widths differ on purpose.
namespace label {
inline constexpr std::wstring_view kToDo = L"              ";
inline constexpr std::wstring_view kChosen = L" X   ";  ///< in the selection window
inline constexpr std::wstring_view kSeen = L" Vu            ";
inline constexpr std::wstring_view kInProgress = L" EnCours  ";
inline constexpr std::wstring_view kDone = L" Fait          ";
}  // namespace label

/// The label of a state code, with or without the reload flag's leading 1; none for other codes.
std::optional<std::wstring_view> labelOf(const StateCode& code);

/// "\" and `levels` times "..\"; empty for 0.
std::wstring upwards(int levels);

/// A path with its first directory levels, as many as `depth` at most, shown as "..\" behind the
/// drive. Empty when there is no level to hide: depth 0, a bare name, a file in a drive's root.
/// Raises 9 when the path has more than 16 backslashes before its last character.
std::wstring shortPath(int depth, std::wstring_view path);

/// Adds a path to a line as the lists show it: whole at depth 0, otherwise shortened. Raises 9 as
/// shortPath.
void addShownPath(std::wstring& line, std::wstring_view path, int depth);

/// A line of the work list as the tracking window shows it: its one-based number in four digits
/// and two blanks, the label of its state, its path at the display depth. Raises 9 as shortPath.
std::wstring displayLine(int index, std::wstring_view label, std::wstring_view path, int depth);

/// The number of leading directory levels that a window hides in the paths of its list, 0 to 9,
/// with the label that shows it between the buttons "-" and "+".
class DisplayDepth {
 public:
    explicit DisplayDepth(Control& label) : label_(label) {}

    int levels() const { return levels_; }
    void reset() { set(0); }

    // Each is true when the list must be redrawn.
    bool hideOneMore();
    bool hideOneLess();

 private:
    bool set(int levels);

    Control& label_;
    int levels_ = 0;
};

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

/// Gives these lines other texts, the quicker way: a single change takes the longer the more lines
/// there are.
void changeLines(ListBox& list, const std::vector<int>& lines,
                 const std::function<std::wstring(int)>& line);
