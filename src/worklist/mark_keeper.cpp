#include "worklist/mark_keeper.h"

#include <algorithm>

#include "common/runtime_error.h"
#include "platform/clock.h"
#include "worklist/beside_list.h"

namespace {

bool allAsInFile(const std::vector<KeptLine>& lines) {
    return std::ranges::all_of(
        lines, [](const KeptLine& line) { return line.state == KeptLine::State::AsInFile; });
}

}  // namespace

std::wstring keptMarksFile(const std::wstring& listFile) {
    return besideList(listFile, L".reprise");
}

MarkKeeper::MarkKeeper(RecordFiles& files, const std::wstring& listFile, const Clock& clock)
    : file_(files.at(keptMarksFile(listFile))), clock_(clock) {}

void MarkKeeper::begin(const ListIdentity& listFile, const WorkList& list) {
    listFile_ = listFile;
    codes_ = codesOf(list);
    writer_.emplace(listFile, codes_.size(), clock_.now());
    written_ = 0;
    opening_ = false;
    trouble_ = false;
}

std::optional<KeptState> MarkKeeper::find() const {
    const auto record = file_->read();
    if (!record) return std::nullopt;
    return readKeptMarks(*record, listFile_, codes_.size());
}

void MarkKeeper::forget() {
    file_->remove();
    written_ = 0;
}

void MarkKeeper::keep(const WorkList& list, std::optional<std::int32_t> opening) {
    std::vector<KeptLine> now = keptLinesOf(list, codes_);
    opening_ = opening.has_value();
    if (!opening_ && allAsInFile(now)) {
        forget();
    } else {
        guarded([&] { write(now, opening); });
    }
    kept_ = std::move(now);
}

void MarkKeeper::opened() {
    if (!opening_) return;
    opening_ = false;
    if (allAsInFile(kept_)) {
        forget();
        return;
    }
    // What is on disk holds without this, too: the next start would ask once too often.
    guarded([&] { append(writer_->record(kept_, kept_, std::nullopt), RecordFile::Flush::Later); });
}

void MarkKeeper::write(const std::vector<KeptLine>& now, std::optional<std::int32_t> opening) {
    // A record that has grown past the list is written anew, without what is out of date.
    constexpr std::size_t kAlwaysEnough = 4096;
    const bool tooLong = written_ > std::max<std::size_t>(listFile_.length(), kAlwaysEnough);
    if (written_ == 0 || tooLong) {
        writeWhole(now, opening);
    } else {
        append(writer_->record(kept_, now, opening), RecordFile::Flush::Now);
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

void MarkKeeper::writeWhole(const std::vector<KeptLine>& now, std::optional<std::int32_t> opening) {
    const std::vector<KeptLine> nothing(now.size());
    const std::string bytes = writer_->header() + writer_->record(nothing, now, opening);
    file_->replace(bytes);
    written_ = bytes.size();
}

bool MarkKeeper::keeps() const { return written_ > 0 && !allAsInFile(kept_); }

bool MarkKeeper::takeFailure() {
    if (!trouble_ || told_) return false;
    return told_ = true;
}

void removeKeptMarks(RecordFiles& files, const std::wstring& listFile) {
    files.at(keptMarksFile(listFile))->remove();
}
