#include "worklist/pass.h"

#include "common/utf8.h"
#include "worklist/list_file.h"

std::wstring Pass::currentPath() const { return wideText(list_.lines[current_].path); }

bool Pass::read(std::string listFile) { return parseListFile(std::move(listFile), list_); }

bool Pass::start() {
    takeBackInProgress(list_);
    int line = 0;
    while (line < list_.last && !list_.isToDo(line)) ++line;
    if (list_.isToDo(line)) list_.lines[line].code = state::kInProgress;
    // Strict on purpose.
    if (line < list_.last) {
        show(line);
        return true;
    }
    current_ = list_.lineCount();
    return false;
}

bool Pass::advance(std::string_view mark) {
    if (current_ >= 0) list_.lines[current_].code = mark;
    current_ = nextToDo(list_, current_);
    if (pastEnd()) return false;
    putInProgress(current_);
    return true;
}

bool Pass::stepBack() {
    if (pastEnd()) {
        current_ = list_.last;
    } else {
        list_.lines[current_].code = state::kToDo;
        --current_;
    }
    current_ = previousToDo(list_, current_);
    if (current_ == kNoLine) return false;
    putInProgress(current_);
    return true;
}

bool Pass::change(const LineSelected& selected, std::string_view code) {
    changeSelected(list_, selected, code);
    return reestablish();
}

bool Pass::eliminate(const LineSelected& chosen, Eliminate states) {
    eliminateLines(list_, chosen, states);
    return reestablish();
}

void Pass::reset(const LineSelected& selected) { show(resetSelected(list_, selected)); }

bool Pass::resumeAt(int line) {
    const auto found = resumeFrom(list_, line);
    show(found.value_or(list_.last));
    return found.has_value();
}

void Pass::write(std::int32_t lineCount, const std::function<void(std::string_view)>& file) {
    formatListFile(list_, lineCount, file);
}

void Pass::putInProgress(int line) {
    list_.lines[line].code = state::kInProgress;
    show(line);
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
