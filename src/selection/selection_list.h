#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

class FoundDocuments;
class ListBox;

/// The documents found as lines of a list, each chosen or not: its data, 1 or 0, and an "X" in
/// front. The list's own selection (the highlight) is another thing.
class SelectionList {
 public:
    using Entries = std::unordered_set<std::wstring>;

    SelectionList(ListBox& list, const FoundDocuments& found) : list_(list), found_(found) {}

    /// Draws all lines of the table, and chooses some of them.
    void fill(int depth, const std::function<bool(int line)>& isChosen);
    /// Draws all lines at another depth; choices are kept.
    void redraw(int depth);

    int chosenCount() const;
    Entries chosenEntries() const;
    /// Whether a line will be part of the pass.
    bool chosen(int line) const;

    void toggleHighlighted();
    void toggleAll();
    // Both compare with the line as displayed, the label and what is visible of the path, in any
    // case.
    void chooseMatching(std::wstring_view filter) { toggle(matching(filter, false)); }
    void dropMatching(std::wstring_view filter) { toggle(matching(filter, true)); }

 private:
    /// A line as it is displayed, chosen or not.
    std::wstring lineText(int line, bool chosen) const;
    void appendLine(std::wstring& text, int line, bool chosen) const;
    /// The chosen lines, or the others, whose displayed text contains the filter.
    std::vector<int> matching(std::wstring_view filter, bool chosen) const;
    void toggle(const std::vector<int>& lines);

    ListBox& list_;
    const FoundDocuments& found_;
    int depth_ = 0;  ///< of the lines as drawn
};
