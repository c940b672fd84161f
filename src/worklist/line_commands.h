#pragma once

#include <functional>
#include <optional>
#include <string_view>

struct WorkList;

// What the pass does to the table of lines: searches, and changes of many lines at once.

/// Tells whether a line is selected.
using LineSelected = std::function<bool(int)>;

/// The first line to do below line `from` (-1: from the top); one past the last when none is.
int nextToDo(const WorkList& list, int from);

/// The nearest line to do from line `from` upwards, itself included; -1 when none is.
int previousToDo(const WorkList& list, int from);

/// Puts lines in progress back to do.
void takeBackInProgress(WorkList& list);

/// Copies a line over another one, but for the reload flag, which stays where it is.
void moveLine(WorkList& list, int from, int to);

enum class Eliminate { Seen, DoneAndSeen };

/// Removes the lines of the given states that `chosen` names. Codes and paths move up; the reload
/// flags stay where they are.
void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states);

/// The line in progress or, when there is none, the first line to do, put in progress; nothing
/// when there is neither. Reads the row just past the last one: raises 9 when the table is full
/// and holds neither.
std::optional<int> reestablishCurrent(WorkList& list);
