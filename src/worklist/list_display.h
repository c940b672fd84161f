#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "worklist/work_list.h"

class Control;
class ListBox;

/// What precedes a path in the lists. The widths differ on purpose.
namespace label {
inline constexpr std::wstring_view kToDo = L"              ";
inline constexpr std::wstring_view kChosen = L" X   ";  ///< in the selection window
inline constexpr std::wstring_view kSeen = L" Vu            ";
inline constexpr std::wstring_view kInProgress = L" EnCours  ";
inline constexpr std::wstring_view kDone = L" Fait          ";
}  // namespace label

/// The label of a state code, with or without the reload flag's leading 1; nothing for other codes.
std::optional<std::wstring_view> labelOf(const StateCode& code);

/// "\" followed by `levels` times "..\"; empty for 0.
std::wstring upwards(int levels);

/// A path in which "..\" replaces each of the first directories after the drive, `depth` of them at
/// most. Empty when there is none to hide: depth 0, a bare name, a file in a drive's root. Raises 9
/// when the path has more than 16 backslashes before its last character.
std::wstring shortPath(int depth, std::wstring_view path);

/// Appends a path to a line as the lists show it: whole at depth 0, otherwise shortened. Raises 9
/// as shortPath.
void addShownPath(std::wstring& line, std::wstring_view path, int depth);

/// A line of the work list as the tracking window shows it: its one-based number with four digits,
/// two blanks, the label of its state, its path at the display depth. Raises 9 as shortPath.
std::wstring displayLine(int index, std::wstring_view label, std::wstring_view path, int depth);

/// The number of leading directories that a window hides in the paths of its list, 0 to 9, with the
/// label that shows it between the buttons "-" and "+".
class DisplayDepth {
 public:
    explicit DisplayDepth(Control& label) : label_(label) {}

    int levels() const { return levels_; }
    void reset() { set(0); }

    // Both return whether the list must be redrawn.
    bool hideOneMore();
    bool hideOneLess();

 private:
    bool set(int levels);

    Control& label_;
    int levels_ = 0;
};

/// Draws the work list in a list box, and remembers what it drew, so that a redraw in place touches
/// changed lines only.
class WorkListView {
 public:
    explicit WorkListView(ListBox& list) : list_(list) {}

    /// Draws all lines again. With `allToDo` every line but the first is shown as to do.
    void rebuild(const WorkList& list, int depth, bool allToDo);

    /// Redraws in place, with no line selected: as if every line had been removed and inserted
    /// again.
    void update(const WorkList& list, int depth);

 private:
    ListBox& list_;
    std::vector<std::wstring_view> drawnLabels_;
    int drawnDepth_ = 0;
};

/// Changes the texts of these lines one by one or all at once, whichever is quicker: a single
/// change takes longer the more lines the list has.
void changeLines(ListBox& list, const std::vector<int>& lines,
                 const std::function<std::wstring(int)>& line);
