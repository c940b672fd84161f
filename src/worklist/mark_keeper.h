#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "ports/record_files.h"
#include "worklist/kept_lines.h"
#include "worklist/kept_marks.h"

class Clock;

/// Keeps on disk, beside a list file, what has changed since that was written, so that no mark is
/// lost whatever dies. While there is nothing to offer at the next start there is no such file.
/// When it can't be written the pass goes on without: see takeFailure.
class MarkKeeper {
 public:
    MarkKeeper(RecordFiles& files, const std::wstring& listFile, const Clock& clock);

    /// From now on keeps what changes against a list file with these bytes, whose lines are these.
    void begin(const ListIdentity& listFile, const WorkList& list);

    /// What an earlier run kept of this list, if it is its record.
    std::optional<KeptState> find() const;
    /// Removes what was kept.
    void forget();

    /// Puts on disk what has changed, and which line's document is about to be opened. To be
    /// called before the next call to the CAD application.
    void keep(const WorkList& list, std::optional<std::int32_t> opening = std::nullopt);
    /// The document that was being opened is open.
    void opened();

    /// Whether marks will be offered at the next start.
    bool keeps() const { return written_ > 0 && !lines_.allAsInFile(); }
    /// True once, when the record could not be written.
    bool takeFailure();

 private:
    void write(std::span<const std::size_t> changed, std::optional<std::int32_t> opening);
    void append(const std::string& record, RecordFile::Flush flush);
    /// Does some writing, unless that has failed before.
    void guarded(const std::function<void()>& writing);
    void writeWhole(std::optional<std::int32_t> opening);

    std::unique_ptr<RecordFile> file_;
    const Clock& clock_;
    ListIdentity listFile_;
    KeptLines lines_;
    std::optional<KeptMarksWriter> writer_;
    std::size_t written_ = 0;  ///< bytes; 0 when there is no record of this run
    bool opening_ = false;
    bool trouble_ = false;  ///< the record could not be written
    bool told_ = false;     ///< the user knows
};

/// Where the marks of a list are kept.
std::wstring keptMarksFile(const std::wstring& listFile);

/// Removes the marks kept of a list, if there are any: they are not to be offered any more.
void removeKeptMarks(RecordFiles& files, const std::wstring& listFile);
