#include "worklist/line_commands.h"

#include <gtest/gtest.h>

#include "unit/raised.h"
#include "worklist/work_list.h"

namespace {

/// A list from codes separated by blanks; below its last line stand stale lines, all to do.
WorkList listOf(const std::wstring& codes) {
    WorkList list;
    long row = 0;
    std::wstring code;
    for (const wchar_t c : codes + L' ') {
        if (c != L' ') {
            code += c;
        } else if (!code.empty()) {
            const auto& path = list.texts.emplace_back(L"c:\\" + std::to_wstring(row));
            list.EtatFich[row++] = {code, path, L""};
            code.clear();
        }
    }
    list.DerFich = static_cast<std::int16_t>(row - 1);
    for (long i = row; i < row + 3; ++i) list.EtatFich[i].code = state::kToDo;
    return list;
}

std::wstring codesOf(const WorkList& list) {
    std::wstring codes;
    for (int i = 0; i <= list.DerFich; ++i) codes += (i == 0 ? L"" : L" ") + list.EtatFich[i].code;
    return codes;
}

LineSelected only(std::vector<int> lines) {
    return [lines](int line) { return std::find(lines.begin(), lines.end(), line) != lines.end(); };
}

const LineSelected kAll = [](int) { return true; };

}  // namespace

TEST(LineCommands, ChangingSparesTheLineInProgress) {
    WorkList list = listOf(L"0 1 2 3 10 12 x 0");
    changeSelected(list, only({0, 1, 2, 3, 4, 5, 6}), state::kSeen);
    EXPECT_EQ(codesOf(list), L"2 2 2 3 2 2 2 0");
    EXPECT_EQ(list.EtatFich[8].code, L"0");
}

TEST(LineCommands, EliminatingRemovesChosenLinesOfItsStates) {
    const struct {
        LineSelected chosen;
        Eliminate states;
        const wchar_t* afterwards;
    } cases[] = {
        {kAll, Eliminate::DoneAndSeen, L"0 3 11 12 x"},
        {only({1, 2}), Eliminate::DoneAndSeen, L"0 3 11 12 1 2 x"},
        {only({1, 7}), Eliminate::Seen, L"0 1 2 3 11 12 1 x"},
    };
    for (const auto& c : cases) {
        WorkList list = listOf(L"0 1 2 3 11 12 1 2 x");
        eliminateLines(list, c.chosen, c.states);
        EXPECT_EQ(codesOf(list), c.afterwards);
    }
}

TEST(LineCommands, EliminatingMovesPathsButNotReloadFlags) {
    WorkList list = listOf(L"1 0 2 0");
    list.EtatFich[0].reload = list.EtatFich[3].reload = L"1";
    eliminateLines(list, kAll, Eliminate::DoneAndSeen);
    EXPECT_EQ(list.DerFich, 1);
    EXPECT_EQ(list.EtatFich[0].path, L"c:\\1");
    EXPECT_EQ(list.EtatFich[1].path, L"c:\\3");
    EXPECT_EQ(list.EtatFich[0].reload, L"1");
    EXPECT_EQ(list.EtatFich[1].reload, L"");
}

TEST(LineCommands, ReestablishesTheLineInProgressOrTheFirstToDo) {
    const struct {
        const wchar_t* before;
        std::optional<int> current;
        const wchar_t* afterwards;
    } cases[] = {
        {L"0 1 3 0", 2, L"0 1 3 0"},    {L"1 0 0", 1, L"1 3 0"},
        {L"1 2", std::nullopt, L"1 2"}, {L"10 13", std::nullopt, L"10 13"},
        {L"", std::nullopt, L""},
    };
    for (const auto& c : cases) {
        WorkList list = listOf(c.before);
        EXPECT_EQ(reestablishCurrent(list), c.current) << c.before;
        EXPECT_EQ(codesOf(list), c.afterwards) << c.before;
        // The lines below the last one are stale, to do though they are.
        EXPECT_EQ(list.EtatFich[list.DerFich + 1].code, L"0") << c.before;
    }
}

TEST(LineCommands, ReestablishingReadsTheRowPastTheLastOne) {
    WorkList list;
    for (long i = 0; i < WorkList::kCapacity; ++i) list.EtatFich[i].code = state::kDone;
    list.DerFich = 7999;
    EXPECT_EQ(reestablishCurrent(list), std::nullopt);
    list.DerFich = 8000;
    EXPECT_EQ(raised([&] { reestablishCurrent(list); }), 9);
    // A line to do does not help: the search for the one in progress comes first.
    list.EtatFich[4].code = state::kToDo;
    EXPECT_EQ(raised([&] { reestablishCurrent(list); }), 9);
    list.EtatFich[8000].code = state::kInProgress;
    EXPECT_EQ(reestablishCurrent(list), 8000);
}
