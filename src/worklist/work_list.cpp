#include "worklist/work_list.h"

namespace {

bool isOf(const WorkLine& line, Eliminate states) {
    return line.code == state::kSeen ||
           (states == Eliminate::DoneAndSeen && line.code == state::kDone);
}

std::optional<int> firstWithCode(const WorkList& list, std::string_view code) {
    int i = 0;
    // The row past the last is read, too: in a full table without a match that raises 9.
    while (list.lines[i].code != code && i <= list.last) ++i;
    if (i > list.last) return std::nullopt;
    return i;
}

}  // namespace

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
        if (list.lines[i].code == state::kInProgress) list.lines[i].code = state::kToDo;
    }
}

void moveLine(WorkList& list, int from, int to) {
    const bool reload = list.lines[to].reload;
    list.lines[to] = list.lines[from];
    list.lines[to].reload = reload;
}

void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states) {
    int kept = 0;
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& line = list.lines[i];
        if (isOf(line, states) && chosen(i)) continue;
        moveLine(list, i, kept++);
    }
    list.last = kept - 1;
}

std::optional<int> reestablishCurrent(WorkList& list) {
    if (const auto inProgress = firstWithCode(list, state::kInProgress)) return inProgress;
    const auto toDo = firstWithCode(list, state::kToDo);
    if (toDo) list.lines[*toDo].code = state::kInProgress;
    return toDo;
}
