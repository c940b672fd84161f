#include "worklist/pass.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "common/encoding.h"
#include "ports/machine.h"
#include "worklist/list_file.h"
#include "worklist/mark_keeper.h"

namespace {

std::vector<LineState> statesOf(const WorkList& list) {
    std::vector<LineState> states;
    for (int i = 0; i <= list.last; ++i) states.push_back(list.lines[i].code.state());
    return states;
}

}  // namespace

PassProgress passProgress(const WorkList& list) {
    PassProgress progress{0, list.lineCount()};
    bool inProgress = false;
    for (int i = 0; i <= list.last; ++i) {
        const LineState state = list.lines[i].code.state();
        inProgress = inProgress || state == LineState::InProgress;
        if (state == LineState::Done || state == LineState::Seen) ++progress.done;
    }
    return inProgress ? progress : PassProgress{};
}

std::wstring Pass::pathOf(int line) const { return wideText(list_.lines[line].path); }

std::optional<int> Pass::lineOfFile(std::int32_t fileLine) const {
    for (int i = 0; i <= list_.last; ++i) {
        if (list_.lines[i].fileLine == fileLine) return i;
    }
    return std::nullopt;
}

bool Pass::read(std::string text, const std::wstring& listFile) {
    return parseListFile(std::move(text), list_, listFile);
}

void Pass::restore(const KeptState& kept) { restoreLines(list_, kept); }

bool Pass::start() {
    takeBackInProgress(list_);
    int line = 0;
    while (line < list_.last && !list_.isToDo(line)) ++line;
    // Less than, on purpose: the last line is put in progress, but not opened.
    if (line < list_.last) return startHere(line);
    if (line <= list_.last && list_.isToDo(line)) {
        list_.lines.edit(line)->code = LineState::InProgress;
    }
    current_ = list_.lineCount();
    return false;
}

bool Pass::startAt(int line) {
    takeBackInProgress(list_);
    return startHere(line);
}

bool Pass::startAfter(int line) {
    takeBackInProgress(list_);
    return startHere(nextToDo(list_, line));
}

bool Pass::startHere(int line) {
    current_ = line;
    if (pastEnd()) return false;
    if (list_.isToDo(line)) list_.lines.edit(line)->code = LineState::InProgress;
    show(line);
    return true;
}

bool Pass::advance(LineState state) {
    closeOpen();
    if (current_ >= 0) {
        left_.push_back(current_);
        mark(current_, state);
    }
    const int next = nextToDo(list_, current_);
    // The search reads the row at which it stops, even past the last line: that raises 9 at the end
    // of a list that fills the table.
    static_cast<void>(list_.lines[next]);
    return startHere(next);
}

void Pass::undo() {
    closeOpen();
    // By its place: a save may have put a 1 before its code.
    if (!pastEnd()) mark(current_, LineState::ToDo);
    const int line = left_.back();
    left_.pop_back();
    const auto undone = list_.lines.edit(line);
    undone->code = LineState::InProgress;
    undone->history.markedAt = 0;
    show(line);
}

bool Pass::stepBack() {
    forgetAdvances();
    closeOpen();
    if (pastEnd()) {
        current_ = list_.last;
    } else {
        mark(current_, LineState::ToDo);
        --current_;
    }
    current_ = previousToDo(list_, current_);
    return current_ != kNoLine && startHere(current_);
}

// What was saved stays saved, whatever becomes of the mark.
void Pass::mark(int line, LineState state) {
    const auto marked = list_.lines.edit(line);
    marked->code = state;
    marked->history.markedAt = state == LineState::ToDo ? 0 : clock_.now();
}

template <class Edit>
bool Pass::edited(const Edit& edit) {
    const auto before = statesOf(list_);
    const bool inProgress = edit();
    if (statesOf(list_) != before) forgetAdvances();
    return inProgress;
}

bool Pass::change(const LineSelected& selected, LineState state) {
    return edited([&] {
        for (int i = 0; i <= list_.last; ++i) {
            if (list_.lines[i].code != LineState::InProgress && selected(i)) {
                mark(i, state);
            }
        }
        return reestablish();
    });
}

bool Pass::eliminate(const LineSelected& chosen, Eliminate states) {
    return edited([&] {
        eliminateLines(list_, chosen, states);
        return reestablish();
    });
}

void Pass::reset(const LineSelected& selected) {
    edited([&] {
        for (int i = 0; i <= list_.last; ++i) {
            if (selected(i)) mark(i, LineState::ToDo);
        }
        takeBackInProgress(list_);
        return startHere(nextToDo(list_, -1));
    });
}

bool Pass::resumeAt(int line) {
    forgetAdvances();
    takeBackInProgress(list_);
    if (startHere(nextToDo(list_, line - 1))) return true;
    show(list_.last);
    return false;
}

void Pass::leaveToDo() {
    open_.reset();
    if (list_.lines[current_].code == LineState::InProgress) {
        list_.lines.edit(current_)->code = LineState::ToDo;
    }
}

bool Pass::passOver(Direction direction) {
    if (direction == Direction::Down) return startHere(nextToDo(list_, current_));
    current_ = previousToDo(list_, current_ - 1);
    return current_ != kNoLine && startHere(current_);
}

void Pass::noteOpening(const Remark& remark) {
    list_.lines.edit(current_)->history.remark = remark;
}

void Pass::noteSaving(Saved saved, Remark::Saving saving, std::int32_t number) {
    if (current_ < 0) return;
    LineHistory& history = list_.lines.edit(current_)->history;
    if (saved != Saved::Unknown) history.saved = saved;
    history.remark.saving = saving;
    history.remark.savingNumber = number;
}

void Pass::openCurrent() {
    closeOpen();
    open_ = {list_.lines[current_].fileLine, clock_.now()};
}

void Pass::closeOpen() {
    countOpenTime();
    open_.reset();
}

void Pass::countOpenTime() {
    if (!open_) return;
    const std::int64_t now = clock_.now();
    if (const auto line = lineOfFile(open_->fileLine)) {
        constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
        const std::int64_t before = std::max(list_.lines[*line].history.secondsOpen, 0);
        const std::int64_t open = std::max<std::int64_t>(now - open_->since, 0);
        list_.lines.edit(*line)->history.secondsOpen =
            static_cast<std::int32_t>(std::min(before + open, kMost));
    }
    open_->since = now;
}

void Pass::write(std::int32_t lineCount, const ByteSink& file) {
    formatListFile(list_, lineCount, file);
}

void Pass::takeAsSaved() {
    const auto open = open_ ? lineOfFile(open_->fileLine) : std::nullopt;
    for (int i = 0; i <= list_.last; ++i) list_.lines.edit(i)->fileLine = i;
    // The open document's line may have been eliminated.
    open ? void(open_->fileLine = *open) : open_.reset();
}

void Pass::show(int line) {
    current_ = line;
    shownNumber_ = line + 1;
}

bool Pass::reestablish() {
    const auto found = reestablishCurrent(list_);
    if (found) show(*found);
    return found.has_value();
}
