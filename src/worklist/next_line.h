#pragma once

struct WorkList;

/// The first line to do below line `from` (-1: from the top); one past the last when none is.
int nextToDo(const WorkList& list, int from);

/// The nearest line to do from line `from` upwards, itself included; -1 when none is.
int previousToDo(const WorkList& list, int from);
