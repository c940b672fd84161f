#include "pickers/reading_plan.h"

#include <gtest/gtest.h>

namespace {

/// Reads a directory: these are in it, those that end with an arrow as links.
void read(ReadingPlan& plan, TreeDirectory& directory, const std::vector<std::wstring>& names) {
    for (const std::wstring& name : names) {
        directory.contents.subdirectories.push_back({name, name.ends_with(L'>')});
    }
    plan.finish(directory);
}

TreeDirectory& next(ReadingPlan& plan, TreeDirectory* awaited = nullptr) {
    EXPECT_TRUE(plan.hasNext(awaited));
    return *plan.next(awaited);
}

/// A plan in which as many directories wait as may.
struct FullPlan : testing::Test {
    FullPlan() {
        read(plan, next(plan), std::vector<std::wstring>(3000, L"d"));
        plan.meet(plan.root());
        slow = &next(plan);
        for (std::size_t i = 0; i < ReadingPlan::kMostWaiting; ++i) read(plan, next(plan), {});
    }

    ReadingPlan plan{L"c:\\r", true};
    TreeDirectory* slow = nullptr;  ///< the first of all, not yet read
};

}  // namespace

TEST(ReadingPlan, ReadsFirstWhatTheWalkMeetsFirst) {
    ReadingPlan plan(L"c:\\r", true);
    read(plan, next(plan), {L"a", L"b", L"c>", L"d"});
    TreeDirectory& a = next(plan);
    TreeDirectory& b = next(plan);
    EXPECT_EQ(b.path, L"c:\\r\\b");
    read(plan, b, {L"b1", L"b2"});
    EXPECT_EQ(next(plan).path, L"c:\\r\\b\\b1");
    read(plan, a, {L"a1"});
    EXPECT_EQ(next(plan).path, L"c:\\r\\a\\a1");
    EXPECT_EQ(next(plan).path, L"c:\\r\\b\\b2");
    EXPECT_EQ(next(plan).path, L"c:\\r\\d");
    EXPECT_EQ(plan.next(nullptr), nullptr);
    // Links are read when the walk wants them.
    EXPECT_EQ(next(plan, &plan.subdirectory(plan.root(), 2)).path, L"c:\\r\\c>");
}

TEST_F(FullPlan, LetsTheWalkCatchUp) {
    EXPECT_EQ(plan.next(nullptr), nullptr);
    read(plan, *slow, {});
    for (std::size_t i = 0; i <= ReadingPlan::kMostWaiting / 2; ++i) {
        EXPECT_EQ(plan.next(nullptr), nullptr);
        plan.meet(plan.subdirectory(plan.root(), i));
    }
    EXPECT_EQ(next(plan).index, ReadingPlan::kMostWaiting + 1);
}

TEST_F(FullPlan, StillReadsWhatTheWalkMeetsBeforeAllThatWait) {
    read(plan, *slow, {L"a", L"b"});
    plan.meet(*slow);
    TreeDirectory& a = next(plan, &plan.subdirectory(*slow, 0));
    EXPECT_EQ(a.path, L"c:\\r\\d\\a");
    EXPECT_EQ(next(plan).path, L"c:\\r\\d\\b");
    EXPECT_EQ(plan.next(&a), nullptr);
}
