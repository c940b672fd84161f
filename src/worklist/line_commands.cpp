#include "worklist/line_commands.h"

#include "worklist/next_line.h"
#include "worklist/work_list.h"

namespace {

void takeBackInProgress(WorkList& list) {
    for (int i = 0; i <= list.DerFich; ++i) {
        if (list.EtatFich[i].code == state::kInProgress) list.EtatFich[i].code = state::kToDo;
    }
}

bool isOf(const WorkLine& line, Eliminate states) {
    return line.code == state::kSeen ||
           (states == Eliminate::DoneAndSeen && line.code == state::kDone);
}

std::optional<int> firstWithCode(const WorkList& list, std::string_view code) {
    int i = 0;
    // The row past the last is read, too: in a full table without a match that raises 9.
    while (list.EtatFich[i].code != code && i <= list.DerFich) ++i;
    if (i > list.DerFich) return std::nullopt;
    return i;
}

}  // namespace

void changeSelected(WorkList& list, const LineSelected& selected, std::string_view code) {
    for (int i = 0; i <= list.DerFich; ++i) {
        WorkLine& line = list.EtatFich[i];
        if (selected(i) && line.code != state::kInProgress) line.code = code;
    }
}

int resetSelected(WorkList& list, const LineSelected& selected) {
    for (int i = 0; i <= list.DerFich; ++i) {
        if (selected(i)) list.EtatFich[i].code = state::kToDo;
    }
    takeBackInProgress(list);
    const int first = nextToDo(list, -1);
    list.EtatFich[first].code = state::kInProgress;
    return first;
}

void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states) {
    int kept = 0;
    for (int i = 0; i <= list.DerFich; ++i) {
        const WorkLine& line = list.EtatFich[i];
        if (chosen(i) && isOf(line, states)) continue;
        if (kept != i) {
            list.EtatFich[kept].code = line.code;
            list.EtatFich[kept].path = line.path;
        }
        ++kept;
    }
    list.DerFich = static_cast<std::int16_t>(kept - 1);
}

std::optional<int> reestablishCurrent(WorkList& list) {
    if (const auto inProgress = firstWithCode(list, state::kInProgress)) return inProgress;
    const auto toDo = firstWithCode(list, state::kToDo);
    if (toDo) list.EtatFich[*toDo].code = state::kInProgress;
    return toDo;
}

std::optional<int> resumeFrom(WorkList& list, int from) {
    takeBackInProgress(list);
    const int line = nextToDo(list, from - 1);
    if (line > list.DerFich) return std::nullopt;
    list.EtatFich[line].code = state::kInProgress;
    return line;
}
