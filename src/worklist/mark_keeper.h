#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ports/files.h"
#include "worklist/kept_marks.h"

class Clock;

/// How many lines another state was kept of than a list just read from its file has, eliminated
/// ones included.
int changedLines(const WorkList& list, const KeptState& kept);

/// Gives the lines of a list just read from its file the states and histories that were kept, and
/// removes those that were eliminated. Reload flags stay where they are.
void restoreLines(WorkList& list, const KeptState& kept);

/// What the lines of a list file have become, kept up with the list. Looks only at the lines that
/// may have changed, if they are few.
class KeptLines {
 public:
    KeptLines() = default;
    /// A list file has just these lines.
    explicit KeptLines(const WorkList& list);

    /// Takes over what has changed; returns the lines of the file that are no longer what they were
    /// before, in their order.
    std::vector<std::size_t> follow(const WorkList& list);

    std::span<const KeptLine> all() const { return lines_; }
    bool allAsInFile() const { return otherwise_ == 0; }
    /// The lines of the file that something is to be told of.
    std::vector<std::size_t> toTell() const;

 private:
    std::vector<std::size_t> followAll(const WorkList& list);
    std::vector<std::size_t> followSome(const WorkList& list, std::span<const int> lines);
    bool take(std::size_t fileLine, const KeptLine& now);

    std::vector<StateCode> codes_;  ///< of the lines of the list file
    std::vector<KeptLine> lines_;
    int otherwise_ = 0;          ///< lines that are not as in the file
    int lineCount_ = 0;          ///< of the list, when it was followed last
    std::uint64_t changes_ = 0;  ///< of the list, by then
};

/// Keeps on disk, beside a list file, what has changed since that was written, so that no mark is
/// lost whatever dies. While there is nothing to offer at the next start the file is empty, and at
/// the end it goes. When it can't be written the pass goes on without, and each change tries again.
class MarkKeeper {
 public:
    MarkKeeper(RecordFiles& files, const std::wstring& listFile, const Clock& clock);
    ~MarkKeeper();
    MarkKeeper(const MarkKeeper&) = delete;
    MarkKeeper& operator=(const MarkKeeper&) = delete;

    /// From now on keeps what changes against a list file with these bytes, whose lines are these.
    void begin(const ContentIdentity& listFile, const WorkList& list);

    /// What an earlier run kept of this list, if it is its record.
    std::optional<KeptState> find() const;
    /// Nothing that was kept is offered any more.
    void forget();

    /// Puts on disk what has changed, and which line's document is about to be opened. To be
    /// called before the next call to the CAD application.
    void keep(const WorkList& list, std::optional<std::int32_t> opening = std::nullopt);
    /// The same; the document that is being opened, if any, still is.
    void keepOn(const WorkList& list) { keep(list, opening_); }
    /// The command has made its last call: the document that was being opened is open. What was
    /// said of it is kept with the marks, if there are any.
    void settle(const WorkList& list);

    /// Whether there are marks, and all of them are on disk, to be offered at the next start.
    bool keeps() const { return written_ > 0 && !behind_ && !lines_.allAsInFile(); }
    /// True once for each time that the record could be written no longer.
    bool takeFailure();

 private:
    using Lines = std::span<const std::size_t>;

    void put(Lines changed, std::optional<std::int32_t> opening, RecordFile::Flush flush);
    bool canAppend() const;
    bool append(const std::string& bytes, RecordFile::Flush flush);
    bool replace(const std::string& bytes);
    std::string whole(std::optional<std::int32_t> opening) const;

    std::unique_ptr<RecordFile> file_;
    const Clock& clock_;
    ContentIdentity listFile_;
    KeptLines lines_;
    std::optional<KeptMarksWriter> writer_;
    std::size_t written_ = 0;  ///< bytes on the disk
    bool behind_ = true;       ///< what is on the disk is something else
    std::optional<std::int32_t> opening_;
    bool trouble_ = false;  ///< the last attempt to write failed …
    bool told_ = false;     ///< … and the user knows
};

/// Where the marks of a list are kept.
std::wstring keptMarksFile(const std::wstring& listFile);
