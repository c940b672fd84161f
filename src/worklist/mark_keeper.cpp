#include "worklist/mark_keeper.h"

#include <algorithm>
#include <utility>

#include "common/runtime_error.h"
#include "ports/machine.h"
#include "worklist/list_file.h"

namespace {

using State = KeptLine::State;

StateCode settled(const StateCode& code) {
    return code == LineState::InProgress ? LineState::ToDo : code;
}

State keptStateOf(const StateCode& code, const StateCode& inFile) {
    if (settled(code) == settled(inFile)) return State::AsInFile;
    if (code == LineState::Done) return State::Done;
    return code == LineState::Seen ? State::Seen : State::ToDo;
}

StateCode codeOf(State kept, const StateCode& inFile) {
    switch (kept) {
        case State::ToDo:
            return LineState::ToDo;
        case State::Done:
            return LineState::Done;
        case State::Seen:
            return LineState::Seen;
        default:
            return inFile;
    }
}

std::vector<StateCode> codesOf(const WorkList& list) {
    std::vector<StateCode> codes;
    for (int i = 0; i <= list.last; ++i) codes.push_back(list.lines[i].code);
    return codes;
}

KeptLine keptLineOf(const WorkLine& line, const StateCode& codeInFile) {
    return {keptStateOf(line.code, codeInFile), line.history};
}

std::vector<KeptLine> keptLinesOf(const WorkList& list, std::span<const StateCode> codes) {
    std::vector<KeptLine> kept(codes.size(), {.state = State::Eliminated, .history = {}});
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& line = list.lines[i];
        const auto at = static_cast<std::size_t>(line.fileLine);
        if (at < kept.size()) kept[at] = keptLineOf(line, codes[at]);
    }
    return kept;
}

}  // namespace

int changedLines(const WorkList& list, const KeptState& kept) {
    int changed = 0;
    for (int i = 0; i <= list.last; ++i) {
        const State state = kept.lines.at(static_cast<std::size_t>(i)).state;
        const StateCode& code = list.lines[i].code;
        changed += state == State::Eliminated || settled(codeOf(state, code)) != settled(code);
    }
    return changed;
}

void restoreLines(WorkList& list, const KeptState& kept) {
    int left = 0;
    for (int i = 0; i <= list.last; ++i) {
        const KeptLine& line = kept.lines.at(static_cast<std::size_t>(i));
        if (line.state == State::Eliminated) continue;
        moveLine(list, i, left);
        const auto edit = list.lines.edit(left++);
        edit->code = codeOf(line.state, edit->code);
        edit->history = line.history;
    }
    list.last = left - 1;
}

KeptLines::KeptLines(const WorkList& list) : codes_(codesOf(list)), lines_(codes_.size()) {
    follow(list);
}

std::vector<std::size_t> KeptLines::follow(const WorkList& list) {
    const auto changed = list.lines.changedSince(changes_);
    changes_ = list.lines.changes();
    // A list that is as long as before has lost no line.
    if (changed && list.lineCount() == lineCount_) return followSome(list, *changed);
    return followAll(list);
}

std::vector<std::size_t> KeptLines::followAll(const WorkList& list) {
    lineCount_ = list.lineCount();
    const std::vector<KeptLine> now = keptLinesOf(list, codes_);
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (take(i, now[i])) changed.push_back(i);
    }
    return changed;
}

std::vector<std::size_t> KeptLines::followSome(const WorkList& list, std::span<const int> lines) {
    std::vector<std::size_t> changed;
    for (const int i : lines) {
        if (i > list.last) continue;
        const WorkLine& line = list.lines[i];
        const auto at = static_cast<std::size_t>(line.fileLine);
        if (at < codes_.size() && take(at, keptLineOf(line, codes_[at]))) changed.push_back(at);
    }
    std::ranges::sort(changed);
    return changed;
}

bool KeptLines::take(std::size_t fileLine, const KeptLine& now) {
    constexpr auto isOther = [](const KeptLine& line) {
        return line.state != KeptLine::State::AsInFile;
    };
    KeptLine& line = lines_[fileLine];
    if (line == now) return false;
    otherwise_ += isOther(now) - isOther(line);
    line = now;
    return true;
}

std::vector<std::size_t> KeptLines::toTell() const {
    std::vector<std::size_t> lines;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (lines_[i] != KeptLine()) lines.push_back(i);
    }
    return lines;
}

std::wstring keptMarksFile(const std::wstring& listFile) {
    return besideList(listFile, L".reprise");
}

MarkKeeper::MarkKeeper(RecordFiles& files, const std::wstring& listFile, const Clock& clock)
    : file_(files.at(keptMarksFile(listFile))), clock_(clock) {}

MarkKeeper::~MarkKeeper() {
    if (written_ == 0 && !behind_) file_->remove();
}

void MarkKeeper::begin(const ContentIdentity& listFile, const WorkList& list) {
    listFile_ = listFile;
    lines_ = KeptLines(list);
    writer_.emplace(listFile, lines_.all().size(), clock_.now());
    behind_ = behind_ || written_ > 0;  // what is there belongs to another list file
    opening_.reset();
    trouble_ = false;
    told_ = false;
}

std::optional<KeptState> MarkKeeper::find() const {
    const auto record = file_->read();
    if (!record) return std::nullopt;
    return readKeptMarks(*record, listFile_, lines_.all().size());
}

void MarkKeeper::forget() {
    if (!behind_ && written_ == 0) return;
    behind_ = !file_->clear();
    written_ = 0;
}

void MarkKeeper::keep(const WorkList& list, std::optional<std::int32_t> opening) {
    const std::vector<std::size_t> changed = lines_.follow(list);
    const bool asOnDisk = changed.empty() && opening == opening_ && !behind_;
    opening_ = opening;
    if (!opening_ && lines_.allAsInFile()) {
        forget();
    } else if (!asOnDisk) {
        put(changed, opening, RecordFile::Flush::Now);
    }
}

void MarkKeeper::settle(const WorkList& list) {
    const std::vector<std::size_t> changed = lines_.follow(list);
    const bool wasOpening = std::exchange(opening_, std::nullopt).has_value();
    if (trouble_ || (!wasOpening && changed.empty())) return;
    if (lines_.allAsInFile()) {
        forget();
    } else {
        // Flushed later: should it get lost, the next start asks one question too many.
        put(changed, std::nullopt, RecordFile::Flush::Later);
    }
}

void MarkKeeper::put(Lines changed, std::optional<std::int32_t> opening, RecordFile::Flush flush) {
    const auto added = [&] {
        return written_ == 0 ? whole(opening) : writer_->record(changed, lines_.all(), opening);
    };
    // After a failure half of it may be there: then only a whole new record can be read.
    trouble_ = !(canAppend() && append(added(), flush)) && !replace(whole(opening));
    behind_ = trouble_;
    told_ = told_ && trouble_;
}

bool MarkKeeper::canAppend() const {
    // A record that has outgrown the list is written again, without what is out of date.
    constexpr std::size_t kAlwaysEnough = 4096;
    return !behind_ && written_ <= std::max<std::size_t>(listFile_.length(), kAlwaysEnough);
}

bool MarkKeeper::append(const std::string& bytes, RecordFile::Flush flush) {
    try {
        file_->append(bytes, flush);
    } catch (const RuntimeError&) {
        return false;
    }
    written_ += bytes.size();
    return true;
}

bool MarkKeeper::replace(const std::string& bytes) {
    try {
        file_->replace(bytes);
    } catch (const RuntimeError&) {
        return false;
    }
    written_ = bytes.size();
    return true;
}

std::string MarkKeeper::whole(std::optional<std::int32_t> opening) const {
    return writer_->header() + writer_->record(lines_.toTell(), lines_.all(), opening);
}

bool MarkKeeper::takeFailure() { return trouble_ && !std::exchange(told_, true); }
