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

/// How many lines of a list just read from its file differ in state from what was kept, eliminated
/// ones included.
int changedLines(const WorkList& list, const KeptState& kept);

/// Gives the lines of a list just read from its file the kept states and histories, and removes
/// those that were eliminated. Reload flags stay where they are.
void restoreLines(WorkList& list, const KeptState& kept);

/// What the lines of a list file have become. Follows the changes of the list, and looks at the
/// changed lines only, if they are few.
class KeptLines {
 public:
    KeptLines() = default;
    /// For a list file that has exactly the lines of this list.
    explicit KeptLines(const WorkList& list);

    /// Takes over what has changed since the last call. Returns the lines of the file concerned, in
    /// order.
    std::vector<std::size_t> follow(const WorkList& list);

    std::span<const KeptLine> all() const { return lines_; }
    bool allAsInFile() const { return otherwise_ == 0; }
    /// The lines of the file about which there is something to record.
    std::vector<std::size_t> toTell() const;

 private:
    std::vector<std::size_t> followAll(const WorkList& list);
    std::vector<std::size_t> followSome(const WorkList& list, std::span<const int> lines);
    bool take(std::size_t fileLine, const KeptLine& now);

    std::vector<StateCode> codes_;  ///< of the lines of the list file
    std::vector<KeptLine> lines_;
    int otherwise_ = 0;          ///< how many lines are not as in the file
    int lineCount_ = 0;          ///< of the list, at the last call of `follow`
    std::uint64_t changes_ = 0;  ///< of the list, at that call
};

/// Keeps on disk, beside a list file, what has changed since that was written, so that no mark is
/// lost in a crash. While there is nothing to offer at the next start the record is empty, and in
/// the end it is removed. When it can't be written the pass goes on without it, and each change
/// tries again.
class MarkKeeper {
 public:
    MarkKeeper(RecordFiles& files, const std::wstring& listFile, const Clock& clock);
    ~MarkKeeper();
    MarkKeeper(const MarkKeeper&) = delete;
    MarkKeeper& operator=(const MarkKeeper&) = delete;

    /// From now on keeps the differences from a list file with this content, whose lines are the
    /// list's.
    void begin(const ContentIdentity& listFile, const WorkList& list);

    /// What an earlier run kept of this list, if anything.
    std::optional<KeptState> find() const;
    /// Drops what was kept: it will not be offered.
    void forget();

    /// Puts on disk what has changed, and the line whose document is about to be opened. Call it
    /// before the next call to the CAD application.
    void keep(const WorkList& list, std::optional<std::int32_t> opening = std::nullopt);
    /// The same, while the document that is being opened, if any, still is.
    void keepOn(const WorkList& list) { keep(list, opening_); }
    /// The command has made its last call, so that the document is open. The remark about it is
    /// kept with the marks, if there are any.
    void settle(const WorkList& list);

    /// Whether there are marks, and all of them are on disk to be offered at the next start.
    bool keeps() const { return written_ > 0 && !behind_ && !lines_.allAsInFile(); }
    /// Whether the record could not be written last time.
    bool lags() const { return trouble_; }
    /// True once each time that writing the record begins to fail.
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
    std::size_t written_ = 0;  ///< the record's bytes on disk
    bool behind_ = true;       ///< what is on disk may be something else
    std::optional<std::int32_t> opening_;
    bool trouble_ = false;  ///< the last attempt to write failed …
    bool told_ = false;     ///< … and the user has been told
};

/// Where the marks of a list are kept.
std::wstring keptMarksFile(const std::wstring& listFile);
