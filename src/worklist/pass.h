#pragma once

#include <optional>
#include <string>
#include <vector>

#include "worklist/work_list.h"

class Clock;
struct KeptState;

/// How far a pass has come: the lines no longer to do, of all.
struct PassProgress {
    int done = 0;
    int total = 0;
    bool operator==(const PassProgress&) const = default;
};

/// 0 of 0 when no line is in progress: the pass has not begun or has reached its end.
PassProgress passProgress(const WorkList& list);

/// A pass over the documents of a work list: the lines with their states, which of them is the
/// current one, and the number that is shown of it. The calls to the CAD application stand between
/// its functions, not in them.
class Pass {
 public:
    static constexpr int kNoLine = -1;

    explicit Pass(const Clock& clock) : clock_(clock) {}

    const WorkList& list() const { return list_; }
    /// The current line, zero-based; kNoLine before the first one, lineCount() past the last.
    int current() const { return current_; }
    bool pastEnd() const { return current_ >= list_.lineCount(); }
    /// The one-based number shown; at the end of the list it stays at the last document's.
    int shownNumber() const { return shownNumber_; }
    /// The path of the current line.
    std::wstring currentPath() const { return pathOf(current_); }
    std::wstring pathOf(int line) const;
    /// Where a line of the list file stands now; nothing when it was eliminated.
    std::optional<int> lineOfFile(std::int32_t fileLine) const;

    /// Reads the text of a list file. False when it has no line. Raises 5, and 9 past 8001 lines;
    /// the error names the file and the line.
    bool read(std::string text, const std::wstring& listFile = {});
    /// Gives the lines just read the states that were kept of them.
    void restore(const KeptState& kept);

    // Where a pass begins. Each takes lines left in progress back to do, and is true when the
    // document of the current line is to be opened.

    /// At the first line to do; but a list whose last line is the only one to do starts at its end.
    bool start();
    /// At this line.
    bool startAt(int line);
    /// At the first line to do below this one, or at the end.
    bool startAfter(int line);

    /// Makes another line the current one, states unchanged: the user may have moved the pointer.
    void moveTo(int line) { current_ = line; }

    // Each of these returns whether a line is in progress now, whose document is to be opened.

    /// Gives the current line this state and goes to the next line to do, or to the end. Raises 9
    /// at the end of a list that fills the table; the line has its state then.
    bool advance(LineState state, Saved saved = Saved::Unknown);
    /// Takes the current line back to do and goes to the nearest line to do above; past the end
    /// the search begins at the last line. Without one there is no current line.
    bool stepBack();
    bool change(const LineSelected& selected, LineState state);
    bool eliminate(const LineSelected& chosen, Eliminate states);

    /// Puts the selected lines back to do and goes to the first line to do.
    void reset(const LineSelected& selected);
    /// Goes to the first line to do from `line` on; false when there is none: then the last line
    /// is the current one, whatever its state.
    bool resumeAt(int line);

    enum class Direction { Down, Up };
    /// The document of the current line did not open: it is left to do, and none is open.
    void leaveToDo();
    /// Goes on to the next line to do in this direction, or to the end of it.
    bool passOver(Direction direction);

    /// Whether an advance of this run can be undone.
    bool canUndo() const { return !left_.empty(); }
    /// Undoes the last advance: the line that it left is in progress again, at no time marked, and
    /// the one in progress by now is to do. What was saved stays saved.
    void undo();
    /// No advance so far can be undone any more.
    void forgetAdvances() { left_.clear(); }

    /// The document of the current line is about to be opened; the one before is left.
    void openCurrent();
    /// What the session said while it opened the document of the current line.
    void noteOpening(const Remark& remark);
    /// What it said when it was to save that: how, and which number.
    void noteSaving(Remark::Saving saving, std::int32_t number);
    /// The document that is open is closed: how long it was open is noted.
    void closeOpen();
    /// Notes how long the document that is open has been so by now.
    void countOpenTime();

    /// The text of the list file for the first `lineCount` lines; flagged lines get a leading 1,
    /// once more at each call. Raises 9 past the table.
    std::string fileText(std::int32_t lineCount);
    /// From now on the list file holds the lines as they are.
    void takeAsSaved();

 private:
    void mark(int line, LineState state, Saved saved);
    void markLeft(LineState state, Saved saved);
    bool startHere(int line);
    void show(int line);
    bool reestablish();
    /// Carries out an edit, whose answer it gives; one that changed something forgets the advances.
    template <class Edit>
    bool edited(const Edit& edit);

    struct OpenDocument {
        std::int32_t fileLine;
        std::int64_t since;
    };

    const Clock& clock_;
    WorkList list_;
    int current_ = kNoLine;
    int shownNumber_ = 0;
    std::vector<int> left_;  ///< the lines that were left by the advances that can be undone
    std::optional<OpenDocument> open_;
};
