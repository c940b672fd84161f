#include "worklist/next_line.h"

#include "worklist/work_list.h"

int nextToDo(const WorkList& list, int from) {
    int line = from + 1;
    while (line <= list.DerFich && list.EtatFich[line].code != state::kToDo) ++line;
    return line;
}

int previousToDo(const WorkList& list, int from) {
    int line = from;
    while (line >= 0 && list.EtatFich[line].code != state::kToDo) --line;
    return line;
}
