#include "worklist/line_commands.h"

#include <gtest/gtest.h>

#include "unit/raised.h"
#include "worklist/work_list.h"

namespace {

/// A list from codes separated by blanks; below its last line stand stale lines, all to do.
WorkList listOf(const std::string& codes) {
    WorkList list;
    int row = 0;
    std::string code;
    for (const char c : codes + ' ') {
        if (c != ' ') {
            code += c;
        } else if (!code.empty()) {
            const auto path = list.keep("c:\\" + std::to_string(row));
            list.lines[row++] = {list.keep(code), path};
            code.clear();
        }
    }
    list.last = row - 1;
    for (int i = row; i < row + 3; ++i) list.lines[i].code = state::kToDo;
    return list;
}

std::string codesOf(const WorkList& list) {
    std::string codes;
    for (int i = 0; i <= list.last; ++i)
        codes += (i == 0 ? "" : " ") + std::string(list.lines[i].code);
    return codes;
}

LineSelected only(std::vector<int> lines) {
    return [lines](int line) { return std::find(lines.begin(), lines.end(), line) != lines.end(); };
}

const LineSelected kAll = [](int) { return true; };

}  // namespace

TEST(LineCommands, ChangingSparesTheLineInProgress) {
    WorkList list = listOf("0 1 2 3 10 12 x 0");
    changeSelected(list, only({0, 1, 2, 3, 4, 5, 6}), state::kSeen);
    EXPECT_EQ(codesOf(list), "2 2 2 3 2 2 2 0");
    EXPECT_EQ(list.lines[8].code, "0");
}

TEST(LineCommands, EliminatingRemovesChosenLinesOfItsStates) {
    const struct {
        LineSelected chosen;
        Eliminate states;
        const char* afterwards;
    } cases[] = {
        {kAll, Eliminate::DoneAndSeen, "0 3 11 12 x"},
        {only({1, 2}), Eliminate::DoneAndSeen, "0 3 11 12 1 2 x"},
        {only({1, 7}), Eliminate::Seen, "0 1 2 3 11 12 1 x"},
    };
    for (const auto& c : cases) {
        WorkList list = listOf("0 1 2 3 11 12 1 2 x");
        eliminateLines(list, c.chosen, c.states);
        EXPECT_EQ(codesOf(list), c.afterwards);
    }
}

TEST(LineCommands, EliminatingMovesPathsButNotReloadFlags) {
    WorkList list = listOf("1 0 2 0");
    list.lines[0].reload = list.lines[3].reload = true;
    eliminateLines(list, kAll, Eliminate::DoneAndSeen);
    EXPECT_EQ(list.last, 1);
    EXPECT_EQ(list.lines[0].path, "c:\\1");
    EXPECT_EQ(list.lines[1].path, "c:\\3");
    EXPECT_TRUE(list.lines[0].reload);
    EXPECT_FALSE(list.lines[1].reload);
}

TEST(LineCommands, ReestablishesTheLineInProgressOrTheFirstToDo) {
    const struct {
        const char* before;
        std::optional<int> current;
        const char* afterwards;
    } cases[] = {
        {"0 1 3 0", 2, "0 1 3 0"},        {"1 0 0", 1, "1 3 0"},  {"1 2", std::nullopt, "1 2"},
        {"10 13", std::nullopt, "10 13"}, {"", std::nullopt, ""},
    };
    for (const auto& c : cases) {
        WorkList list = listOf(c.before);
        EXPECT_EQ(reestablishCurrent(list), c.current) << c.before;
        EXPECT_EQ(codesOf(list), c.afterwards) << c.before;
        // The lines below the last one are stale, to do though they are.
        EXPECT_EQ(list.lines[list.last + 1].code, "0") << c.before;
    }
}

TEST(LineCommands, ReestablishingReadsTheRowPastTheLastOne) {
    WorkList list;
    for (int i = 0; i < WorkList::kCapacity; ++i) list.lines[i].code = state::kDone;
    list.last = 7999;
    EXPECT_EQ(reestablishCurrent(list), std::nullopt);
    list.last = 8000;
    EXPECT_EQ(raised([&] { reestablishCurrent(list); }), 9);
    // A line to do does not help: the search for the one in progress comes first.
    list.lines[4].code = state::kToDo;
    EXPECT_EQ(raised([&] { reestablishCurrent(list); }), 9);
    list.lines[8000].code = state::kInProgress;
    EXPECT_EQ(reestablishCurrent(list), 8000);
}
