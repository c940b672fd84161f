#pragma once

#include <string>
#include <string_view>

#include "worklist/line_commands.h"
#include "worklist/work_list.h"

/// A pass over the documents of a work list: the lines with their states, which of them is the
/// current one, and the numbers that are shown of both. The calls to the CAD application stand
/// between its functions, not in them.
class Pass {
 public:
    static constexpr int kNoLine = -1;

    const WorkList& list() const { return list_; }
    /// The current line, zero-based; kNoLine before the first one, lineCount() past the last.
    int current() const { return current_; }
    bool pastEnd() const { return current_ >= list_.lineCount(); }
    /// The one-based number shown; at the end of the list it stays at the last document's.
    int shownNumber() const { return shownNumber_; }
    /// The path of the current line.
    std::wstring currentPath() const;

    /// Reads the text of a list file. False when it has no line. Raises 5, and 9 past 8001 lines.
    bool read(std::string listFile);
    /// Takes lines left in progress back to do and puts in progress the first line to do. True
    /// when that line's document is to be opened: a list whose last line is the only one to do
    /// starts at its end.
    bool start();

    /// Makes another line the current one, states unchanged: the user may have moved the pointer.
    void moveTo(int line) { current_ = line; }

    // Each of these gives whether there is a line in progress now, whose document is to be opened.

    /// Marks the current line with a state and goes to the next line to do, or to the end.
    bool advance(std::string_view mark);
    /// Takes the current line back to do and goes to the nearest line to do above; past the end
    /// the search begins at the last line. Without one there is no current line.
    bool stepBack();
    bool change(const LineSelected& selected, std::string_view code);
    bool eliminate(const LineSelected& chosen, Eliminate states);

    /// Puts the selected lines back to do and goes to the first line to do.
    void reset(const LineSelected& selected);
    /// Goes to the first line to do from `line` on; false when there is none: then the last line
    /// is the current one, whatever its state.
    bool resumeAt(int line);

    /// The text of the list file for the first `lineCount` lines, piece by piece; flagged lines
    /// get a leading 1, once more at each call. Raises 9 past the table.
    void write(std::int32_t lineCount, const std::function<void(std::string_view)>& file);

 private:
    void putInProgress(int line);
    void show(int line);
    bool reestablish();

    WorkList list_;
    int current_ = kNoLine;
    int shownNumber_ = 0;
};
