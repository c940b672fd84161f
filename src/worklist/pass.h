#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ports/files.h"
#include "worklist/work_list.h"

class Clock;
struct KeptState;

/// How far a pass has come: how many lines are done or seen, of all.
struct PassProgress {
    int done = 0;
    int total = 0;
    bool operator==(const PassProgress&) const = default;
};

/// 0 of 0 when no line is in progress: the pass has not begun or has reached its end.
PassProgress passProgress(const WorkList& list);

/// A pass over the documents of a work list: the lines with their states, the current line, and the
/// number shown for it. It makes no calls to the CAD application: these come between its functions.
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
    /// Where a line of the list file is now; nothing when it was eliminated.
    std::optional<int> lineOfFile(std::int32_t fileLine) const;

    /// Reads the text of a list file. False when it has no line. Raises 5, and 9 past 8001 lines;
    /// the error names the file and the line.
    bool read(std::string text, const std::wstring& listFile = {});
    /// Gives the lines just read their kept states.
    void restore(const KeptState& kept);

    // Where a pass begins. Each sets lines left in progress back to do, and returns whether the
    // document of the current line is to be opened.

    /// At the first line to do. But a list whose last line is the only one to do begins at its end.
    bool start();
    /// At this line.
    bool startAt(int line);
    /// At the first line to do below this one, or at the end.
    bool startAfter(int line);

    /// Makes another line the current one without changing states: the user may have moved the
    /// pointer.
    void moveTo(int line) { current_ = line; }

    // Each returns whether a line is in progress now, whose document is to be opened.

    /// Gives the current line this state, and goes to the next line to do or to the end. At the end
    /// of a list that fills the table raises 9, once the line has its state.
    bool advance(LineState state);
    /// Sets the current line back to do, and goes to the nearest line to do above; past the end the
    /// search begins at the last line. When there is none, there is no current line.
    bool stepBack();
    bool change(const LineSelected& selected, LineState state);
    bool eliminate(const LineSelected& chosen, Eliminate states);

    /// Sets the selected lines back to do, and goes to the first line to do.
    void reset(const LineSelected& selected);
    /// Goes to the first line to do from `line` on. False when there is none: then the last line is
    /// the current one, whatever its state.
    bool resumeAt(int line);

    enum class Direction { Down, Up };
    /// The document of the current line did not open: the line is left to do, and none is open.
    void leaveToDo();
    /// Goes on to the next line to do in this direction, or to the end.
    bool passOver(Direction direction);

    /// Whether an advance of this run can be undone.
    bool canUndo() const { return !left_.empty(); }
    /// Undoes the last advance: the line that it left is in progress again, without a time of
    /// marking, and the line now in progress is to do. What was saved stays saved.
    void undo();
    /// From now on no earlier advance can be undone.
    void forgetAdvances() { left_.clear(); }

    /// The document of the current line is about to be opened, or is open: from now on it alone is.
    void openCurrent();
    /// Notes what the session said when it opened the document of the current line.
    void noteOpening(const Remark& remark);
    /// Notes what it said when asked to save that document: whether it did, unless it did not say;
    /// the kind of answer, and its number.
    void noteSaving(Saved saved, Remark::Saving saving, std::int32_t number);
    /// The open document is closed: notes how long it was open.
    void closeOpen();
    /// Notes how long the open document has been open so far.
    void countOpenTime();

    /// Writes the first `lineCount` lines as a list file has them. Each call puts a 1 before the
    /// codes of flagged lines. Raises 9 past the table.
    void write(std::int32_t lineCount, const ByteSink& file);
    /// The list file now holds the lines as they are.
    void takeAsSaved();

 private:
    void mark(int line, LineState state);
    bool startHere(int line);
    void show(int line);
    bool reestablish();
    /// Carries out an edit and returns its answer. If something changed, forgets the advances.
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
    std::vector<int> left_;  ///< the lines left by the advances that can be undone
    std::optional<OpenDocument> open_;
};
