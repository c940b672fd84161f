#include "worklist/mark_keeper.h"

#include <algorithm>

#include "common/runtime_error.h"
#include "ports/clock.h"
#include "worklist/beside_list.h"

std::wstring keptMarksFile(const std::wstring& listFile) {
    return besideList(listFile, L".reprise");
}

MarkKeeper::MarkKeeper(RecordFiles& files, const std::wstring& listFile, const Clock& clock)
    : file_(files.at(keptMarksFile(listFile))), clock_(clock) {}

void MarkKeeper::begin(const ListIdentity& listFile, const WorkList& list) {
    listFile_ = listFile;
    lines_ = KeptLines(list);
    writer_.emplace(listFile, lines_.all().size(), clock_.now());
    written_ = 0;
    opening_ = false;
    trouble_ = false;
}

std::optional<KeptState> MarkKeeper::find() const {
    const auto record = file_->read();
    if (!record) return std::nullopt;
    return readKeptMarks(*record, listFile_, lines_.all().size());
}

void MarkKeeper::forget() {
    file_->remove();
    written_ = 0;
}

void MarkKeeper::keep(const WorkList& list, std::optional<std::int32_t> opening) {
    const std::vector<std::size_t> changed = lines_.follow(list);
    opening_ = opening.has_value();
    if (!opening_ && lines_.allAsInFile()) {
        forget();
    } else {
        guarded([&] { write(changed, opening); });
    }
}

void MarkKeeper::opened() {
    if (!opening_) return;
    opening_ = false;
    if (lines_.allAsInFile()) {
        forget();
        return;
    }
    // What is on disk holds without this, too: the next start would ask once too often.
    guarded(
        [&] { append(writer_->record({}, lines_.all(), std::nullopt), RecordFile::Flush::Later); });
}

void MarkKeeper::write(std::span<const std::size_t> changed, std::optional<std::int32_t> opening) {
    // A record that has grown past the list is written anew, without what is out of date.
    constexpr std::size_t kAlwaysEnough = 4096;
    const bool tooLong = written_ > std::max<std::size_t>(listFile_.length(), kAlwaysEnough);
    if (written_ == 0 || tooLong) {
        writeWhole(opening);
    } else {
        append(writer_->record(changed, lines_.all(), opening), RecordFile::Flush::Now);
    }
}

void MarkKeeper::append(const std::string& record, RecordFile::Flush flush) {
    file_->append(record, flush);
    written_ += record.size();
}

void MarkKeeper::guarded(const std::function<void()>& writing) {
    if (trouble_) return;
    try {
        writing();
    } catch (const RuntimeError&) {
        trouble_ = true;
    }
}

void MarkKeeper::writeWhole(std::optional<std::int32_t> opening) {
    const std::string bytes =
        writer_->header() + writer_->record(lines_.toTell(), lines_.all(), opening);
    file_->replace(bytes);
    written_ = bytes.size();
}

bool MarkKeeper::takeFailure() {
    if (!trouble_ || told_) return false;
    return told_ = true;
}

void removeKeptMarks(RecordFiles& files, const std::wstring& listFile) {
    files.at(keptMarksFile(listFile))->remove();
}
