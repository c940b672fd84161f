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

/// Gives the selected lines a state of the namespace `state`; a line in progress keeps its own.
void changeSelected(WorkList& list, const LineSelected& selected, std::string_view code);

/// Puts the selected lines, and the one in progress, back to do. Gives the first line to do,
/// now in progress; at least one line must be selected.
int resetSelected(WorkList& list, const LineSelected& selected);

enum class Eliminate { Seen, DoneAndSeen };

/// Removes the lines of the given states that `chosen` names. Codes and paths move up; the reload
/// flags stay where they are.
void eliminateLines(WorkList& list, const LineSelected& chosen, Eliminate states);

/// The line in progress or, when there is none, the first line to do, put in progress; nothing
/// when there is neither. Reads the row just past the last one: raises 9 when the table is full
/// and holds neither.
std::optional<int> reestablishCurrent(WorkList& list);

/// Takes the line in progress back to do and puts in progress the first line to do from `from`
/// on. Nothing, and no line in progress, when there is none.
std::optional<int> resumeFrom(WorkList& list, int from);
