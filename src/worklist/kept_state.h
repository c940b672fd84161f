#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "worklist/work_list.h"

/// What a line of the list file has become since that was written. A line in progress counts as
/// to do: where a pass goes on is found anew.
struct KeptLine {
    enum class State : std::uint8_t { ToDo, Done, Seen, Eliminated, AsInFile };

    State state = State::AsInFile;
    LineHistory history;

    bool operator==(const KeptLine&) const = default;
};

/// What a list has become since its file was written.
struct KeptState {
    std::vector<KeptLine> lines;          ///< for each line of the file
    std::optional<std::int32_t> opening;  ///< the line of the file whose document is being opened
};

/// The codes of the lines that a list file holds, for comparison.
std::vector<std::string_view> codesOf(const WorkList& list);

/// What a line has become that has this code in the file.
KeptLine keptLineOf(const WorkLine& line, std::string_view codeInFile);

/// What a list has become of the file whose lines had these codes.
std::vector<KeptLine> keptLinesOf(const WorkList& list, std::span<const std::string_view> codes);

/// How many lines another state was kept of than a list just read from its file has, eliminated
/// ones included.
int changedLines(const WorkList& list, const KeptState& kept);

/// Gives the lines of a list just read from its file the states and histories that were kept, and
/// removes those that were eliminated. Reload flags stay where they are.
void restoreLines(WorkList& list, const KeptState& kept);
