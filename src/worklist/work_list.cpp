#include "worklist/work_list.h"

namespace {

/// In the order of LineState.
constexpr std::string_view kCodes[] = {"0", "1", "2", "3"};

LineState stateOf(std::string_view code) {
    if (code.size() != 1 || code[0] < '0' || code[0] > '3') return LineState::Other;
    return static_cast<LineState>(code[0] - '0');
}

bool isOf(LineState state, Eliminate states) {
    return state == LineState::Seen ||
           (states == Eliminate::DoneAndSeen && state == LineState::Done);
}

std::optional<int> firstOf(const WorkList& list, LineState state) {
    int i = 0;
    // Reads the row past the last line, too: that raises 9 in a full table without a match.
    while (list.lines[i].code != state && i <= list.last) ++i;
    if (i > list.last) return std::nullopt;
    return i;
}

}  // namespace

StateCode::StateCode(LineState state) : text_(kCodes[static_cast<std::size_t>(state)]) {}

LineState StateCode::state() const { return stateOf(text_); }

LineState StateCode::shown() const {
    const bool prefixed = text_.size() == 2 && text_[0] == '1';
    return stateOf(prefixed ? text_.substr(1) : text_);
}

int nextToDo(const WorkList& list, int from) {
    int line = from + 1;
    while (line <= list.last && !list.isToDo(line)) ++line;
    return line;
}

int previousToDo(const WorkList& list, int from) {
    int line = from;
    while (line >= 0 && !list.isToDo(line)) --line;
    return line;
}

void takeBackInProgress(WorkList& list) {
    for (int i = 0; i <= list.last; ++i) {
        if (list.lines[i].code == LineState::InProgress) {
            list.lines.edit(i)->code = LineState::ToDo;
        }
    }
}

void moveLine(WorkList& list, int from, int to) {
    if (from == to) return;
    WorkLine moved = list.lines[from];
    moved.reload = list.lines[to].reload;
    list.lines.edit(to) = moved;
}

void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states) {
    int kept = 0;
    for (int i = 0; i <= list.last; ++i) {
        if (isOf(list.lines[i].code.state(), states) && chosen(i)) continue;
        moveLine(list, i, kept++);
    }
    list.last = kept - 1;
}

std::optional<int> reestablishCurrent(WorkList& list) {
    if (const auto inProgress = firstOf(list, LineState::InProgress)) return inProgress;
    const auto toDo = firstOf(list, LineState::ToDo);
    if (toDo) list.lines.edit(*toDo)->code = LineState::InProgress;
    return toDo;
}
