#include "worklist/next_line.h"

#include "worklist/work_list.h"

int prochaineAFaire(const WorkList& list, int from) {
    int line = from + 1;
    while (line <= list.DerFich && list.EtatFich[line].code != state::kToDo) ++line;
    return line;
}

int precedenteAFaire(const WorkList& list, int from) {
    int line = from;
    while (line >= 0 && list.EtatFich[line].code != state::kToDo) --line;
    return line;
}
