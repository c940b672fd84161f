#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/checked_table.h"
#include "worklist/remark.h"

/// What has become of a document. The commands go by it.
enum class LineState : std::uint8_t { ToDo, Done, Seen, InProgress, Other };

/// A line's state as the list file writes it. Codes are compared as exact texts: a code that is
/// none of the four is kept as it is, and no command finds it.
class StateCode {
 public:
    StateCode() = default;
    StateCode(LineState state);
    /// As a file has it; the text must outlive the code.
    explicit StateCode(std::string_view text) : text_(text) {}

    std::string_view text() const { return text_; }
    LineState state() const;
    /// The state to show: of a code that was given the reload flag's leading 1 as well.
    LineState shown() const;

    bool operator==(const StateCode&) const = default;

 private:
    std::string_view text_;
};

/// What the CAD application answered when a document was to be saved.
enum class Saved : std::uint8_t { Unknown, Yes, No };

/// What happened to a document in this pass.
struct LineHistory {
    std::int64_t markedAt = 0;      ///< as Clock has it; 0: not marked
    std::int32_t secondsOpen = -1;  ///< -1: it was not open
    Saved saved = Saved::Unknown;
    Remark remark;

    bool operator==(const LineHistory&) const = default;
};

/// One document of the pass. Its texts, in UTF-8 as the list file has them, are kept by the list.
struct WorkLine {
    StateCode code;
    std::string_view path;      ///< full path
    bool reload = false;        ///< whether the list file carried the code plus 10
    std::int32_t fileLine = 0;  ///< the line of the list file, zero-based, where it stands
    LineHistory history;
};

/// The lines of a list, in a table of fixed size; reaching past it raises 9. Each change of a line
/// is remembered: who follows the list need not look at all lines each time.
class WorkLines {
 public:
    static constexpr std::int32_t kCapacity = 8001;
    static constexpr wchar_t kLimit[] = L"Lignes de la liste : 8001 au plus.";

    const WorkLine& operator[](int line) const { return table_[line]; }

    /// The way to change a line: each use of it counts as a change.
    class Edit {
     public:
        Edit(WorkLines& lines, int line) : lines_(lines), line_(line) {}
        Edit(const Edit&) = delete;
        Edit& operator=(const Edit&) = delete;

        WorkLine* operator->() const {
            WorkLine& changed = lines_.table_[line_];
            lines_.recent_[lines_.changes_++ % kRemembered] = line_;
            return &changed;
        }
        void operator=(const WorkLine& whole) const { *operator->() = whole; }

     private:
        WorkLines& lines_;
        int line_;
    };
    Edit edit(int line) { return {*this, line}; }

    /// How many changes there were.
    std::uint64_t changes() const { return changes_; }
    /// The lines changed since there were so many; nothing when they were too many to tell.
    std::optional<std::vector<int>> changedSince(std::uint64_t before) const {
        if (changes_ - before > kRemembered) return std::nullopt;
        std::vector<int> lines;
        for (; before != changes_; ++before) lines.push_back(recent_[before % kRemembered]);
        return lines;
    }

 private:
    static constexpr std::size_t kRemembered = 32;  ///< more than a command of one line takes

    CheckedTable<WorkLine, kCapacity, kLimit> table_;
    std::array<int, kRemembered> recent_{};
    std::uint64_t changes_ = 0;
};

/// The ordered list of documents of a pass, each with its state.
struct WorkList {
    static constexpr std::int32_t kCapacity = WorkLines::kCapacity;

    WorkList() = default;
    /// Not copied: the copy's lines would stand in this one's texts.
    WorkList(WorkList&&) = default;
    WorkList& operator=(WorkList&&) = default;

    WorkLines lines;
    int last = -1;  ///< index of the last line in use; the lines above it are stale

    int lineCount() const { return last + 1; }
    bool isToDo(int line) const { return lines[line].code == LineState::ToDo; }

    /// Keeps a text as long as the list, for lines to stand in: the whole list file is one.
    std::string_view keep(std::string text) { return texts_.emplace_back(std::move(text)); }

 private:
    std::deque<std::string> texts_;  ///< a deque, whose elements stay where they are
};

// What the pass does to the table of lines: searches, and changes of many lines at once.

/// Tells whether a line is selected.
using LineSelected = std::function<bool(int)>;

/// The first line to do below line `from` (-1: from the top); one past the last when none is.
int nextToDo(const WorkList& list, int from);

/// The nearest line to do from line `from` upwards, itself included; -1 when none is.
int previousToDo(const WorkList& list, int from);

/// Puts lines in progress back to do.
void takeBackInProgress(WorkList& list);

/// Copies a line over another one, but for the reload flag, which stays where it is.
void moveLine(WorkList& list, int from, int to);

enum class Eliminate { Seen, DoneAndSeen };

/// Removes the lines of the given states that `chosen` names. Codes and paths move up; the reload
/// flags stay where they are.
void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states);

/// The line in progress or, when there is none, the first line to do, put in progress; nothing
/// when there is neither. Reads the row just past the last one: raises 9 when the table is full
/// and holds neither.
std::optional<int> reestablishCurrent(WorkList& list);
