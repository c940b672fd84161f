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

/// What has become of a document. Commands decide by it.
enum class LineState : std::uint8_t { ToDo, Done, Seen, InProgress, Other };

/// A line's state as the list file writes it. Codes are compared as texts: one that is none of the
/// four is kept as it is, and no command finds it.
class StateCode {
 public:
    StateCode() = default;
    StateCode(LineState state);
    /// The code as a file has it. The text must outlive it.
    explicit StateCode(std::string_view text) : text_(text) {}

    std::string_view text() const { return text_; }
    LineState state() const;
    /// The state to show: also recognises codes with the reload flag's leading 1.
    LineState shown() const;

    bool operator==(const StateCode&) const = default;

 private:
    std::string_view text_;
};

/// What the CAD application answered when asked to save a document.
enum class Saved : std::uint8_t { Unknown, Yes, No };

/// What happened to a document in this pass.
struct LineHistory {
    std::int64_t markedAt = 0;      ///< a time of Clock; 0: not marked
    std::int32_t secondsOpen = -1;  ///< -1: it was not open
    Saved saved = Saved::Unknown;
    Remark remark;

    bool operator==(const LineHistory&) const = default;
};

/// One document of the pass. The list owns its texts, in UTF-8 as in the list file.
struct WorkLine {
    StateCode code;
    std::string_view path;      ///< full path
    bool reload = false;        ///< whether the list file carried the code plus 10
    std::int32_t fileLine = 0;  ///< its zero-based line in the list file
    LineHistory history;
};

/// The lines of a list, in a table of fixed size; reaching past it raises 9. It remembers which
/// lines changed last, so that those who follow the list need not look at all of them.
class WorkLines {
 public:
    static constexpr std::int32_t kCapacity = 8001;
    static constexpr wchar_t kLimit[] = L"Lignes de la liste : 8001 au plus.";

    const WorkLine& operator[](int line) const { return table_[line]; }

    /// The way to change a line. Each use counts as a change.
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

    /// How many changes there have been.
    std::uint64_t changes() const { return changes_; }
    /// The lines changed since there had been `before` changes; nothing when these are too many to
    /// remember.
    std::optional<std::vector<int>> changedSince(std::uint64_t before) const {
        if (changes_ - before > kRemembered) return std::nullopt;
        std::vector<int> lines;
        for (; before != changes_; ++before) lines.push_back(recent_[before % kRemembered]);
        return lines;
    }

 private:
    /// More changes than a command makes to one line.
    static constexpr std::size_t kRemembered = 32;

    CheckedTable<WorkLine, kCapacity, kLimit> table_;
    std::array<int, kRemembered> recent_{};
    std::uint64_t changes_ = 0;
};

/// The ordered list of documents of a pass, each with its state.
struct WorkList {
    static constexpr std::int32_t kCapacity = WorkLines::kCapacity;

    WorkList() = default;
    /// It can't be copied: the lines of the copy would refer to this one's texts.
    WorkList(WorkList&&) = default;
    WorkList& operator=(WorkList&&) = default;

    WorkLines lines;
    int last = -1;  ///< index of the last line in use; lines with a higher index are stale

    int lineCount() const { return last + 1; }
    bool isToDo(int line) const { return lines[line].code == LineState::ToDo; }

    /// Keeps a text, such as the whole list file, as long as the list, for lines to refer to.
    std::string_view keep(std::string text) { return texts_.emplace_back(std::move(text)); }

 private:
    std::deque<std::string> texts_;  ///< a deque, since its elements never move
};

// What the pass does to the table of lines: searches, and changes to many lines at once.

/// Tells whether a line is selected.
using LineSelected = std::function<bool(int)>;

/// The first line to do below line `from` (-1: from the top); one past the last line when there is
/// none.
int nextToDo(const WorkList& list, int from);

/// The nearest line to do from line `from` upwards, itself included; -1 when there is none.
int previousToDo(const WorkList& list, int from);

/// Sets lines in progress back to do.
void takeBackInProgress(WorkList& list);

/// Copies a line over another one. The reload flag stays where it is.
void moveLine(WorkList& list, int from, int to);

enum class Eliminate { Seen, DoneAndSeen };

/// Removes the chosen lines of these states. The lines below move up, but for the reload flags,
/// which stay where they are.
void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states);

/// The line in progress, or else the first line to do, which is put in progress; nothing when there
/// is neither. It reads the row just past the last one, which raises 9 when the table is full and
/// holds neither.
std::optional<int> reestablishCurrent(WorkList& list);
