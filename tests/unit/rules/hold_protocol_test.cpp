#include "rules/hold_protocol.h"

#include <deque>
#include <gtest/gtest.h>

namespace {

const ListHolder kUs{L"jean", L"PC-1"};
const ListHolder kZoe{L"zoé", L"PC-2"};

/// The machine as the list's owner in this session and the file beside the list change it, step by
/// step; the last thing told of each holds on.
struct HoldScript {
    std::deque<bool> owned{true};
    std::deque<bool> raised{true};
    std::deque<HoldFileState> files{HoldFileState::Ours};
    std::deque<ListHolder> holders{kZoe};
    std::deque<bool> there{true};
};

struct ScriptedSteps : HoldSteps {
    explicit ScriptedSteps(const HoldScript& wanted) : script(wanted) {}

    HoldScript script;
    int pauses = 0;

    template <class Value>
    static Value next(std::deque<Value>& told) {
        const Value value = told.front();
        if (told.size() > 1) told.pop_front();
        return value;
    }

    bool own() override { return next(script.owned); }
    bool raiseOwner() override { return next(script.raised); }
    HoldFileState takeFile(const ListHolder&) override { return next(script.files); }
    ListHolder fileHolder() override { return next(script.holders); }
    bool hasFile() override { return next(script.there); }
    void pause() override { ++pauses; }
};

}  // namespace

TEST(HoldProtocol, FindsOutWhoHasAList) {
    const HoldAnswer kHeld{};
    const HoldAnswer kHidden{.hidden = true};
    const HoldAnswer kRaised{HoldAnswer::Kind::RaisedOther};
    const HoldAnswer kByZoe{HoldAnswer::Kind::HeldElsewhere, kZoe};
    const struct {
        const char* what;
        HoldScript script;
        HoldAnswer answer;
        int pauses;
    } cases[] = {
        {"nobody", {}, kHeld, 0},
        {"a program with a window", {.owned = {false}}, kRaised, 0},
        {"one just starting", {.owned = {false}, .raised = {false, false, true}}, kRaised, 2},
        {"one just ending", {.owned = {false, false, true}, .raised = {false}}, kHeld, 2},
        {"one that shows nothing", {.owned = {false}, .raised = {false}}, kRaised, 200},
        {"another machine", {.files = {HoldFileState::Theirs}}, kByZoe, 0},
        {"another one just starting",
         {.files = {HoldFileState::Theirs}, .holders = {{}, {}, kZoe}},
         kByZoe,
         2},
        {"ours just ending, its file still there",
         {.files = {HoldFileState::Theirs, HoldFileState::Busy, HoldFileState::Ours},
          .holders = {kUs}},
         kHeld,
         2},
        {"us in another session",
         {.files = {HoldFileState::Theirs}, .holders = {kUs}},
         {HoldAnswer::Kind::HeldElsewhere, kUs},
         40},
        {"a backup that reads the file", {.files = {HoldFileState::Busy}}, kHidden, 40},
        {"one that soon has done", {.files = {HoldFileState::Busy, HoldFileState::Ours}}, kHeld, 1},
        {"a file left over that is protected", {.files = {HoldFileState::Blocked}}, kHidden, 0},
        {"a directory that can't be written in", {.files = {HoldFileState::Unusable}}, kHeld, 0},
    };
    for (const auto& c : cases) {
        ScriptedSteps steps(c.script);
        const HoldAnswer answer = takeHold(steps, kUs);
        EXPECT_EQ(answer.kind, c.answer.kind) << c.what;
        EXPECT_EQ(answer.holder, c.answer.holder) << c.what;
        EXPECT_EQ(answer.hidden, c.answer.hidden) << c.what;
        EXPECT_EQ(steps.pauses, c.pauses) << c.what;
    }
}

TEST(HoldProtocol, TellsAHeldFileFromOneThatCannotBeWritten) {
    constexpr std::uint32_t kNotFound = 2, kDenied = 5, kShared = 32, kWriteProtected = 19;
    using enum HoldFileState;
    const struct {
        std::uint32_t creating, looking;
        HoldFileState state;
        const char* what;
    } cases[] = {{0, 0, Ours, ""},
                 {kShared, kShared, Theirs, ""},
                 {kDenied, kShared, Theirs, "another user's, where each may write his own"},
                 {kShared, 0, Busy, "a reader has it"},
                 {kShared, kNotFound, Busy, "gone meanwhile"},
                 {kDenied, kDenied, Busy, "about to go"},
                 {kDenied, kNotFound, Unusable, ""},
                 {kDenied, 0, Blocked, "left over, another user's or read-only"},
                 {kWriteProtected, kNotFound, Unusable, ""}};
    for (const auto& c : cases) EXPECT_EQ(holdFileState(c.creating, c.looking), c.state) << c.what;
}

TEST(HoldProtocol, TakesALostFileAgainAndTellsOnceOfAnotherHolder) {
    using enum HoldFileState;
    ScriptedSteps steps({.files = {Unusable, Theirs, Theirs, Theirs, Ours, Theirs},
                         .holders = {kUs, kZoe},
                         .there = {true, false}});
    HoldRenewal renewal;
    // There, the network still down, our own of before the cut, Zoé's, still hers, ours, hers
    // again.
    const std::optional<ListHolder> none;
    for (const auto& told : {none, none, none, {kZoe}, none, none, {kZoe}}) {
        EXPECT_EQ(renewal.takeAgain(steps, kUs), told);
    }
}

TEST(HoldProtocol, OneNameForEveryPathToAList) {
    const DirectoryId directory{7, {1}};
    const std::wstring name = holdName(directory, L"c:\\plans\\Été.lst");
    EXPECT_EQ(holdName(directory, L"z:\\éTÉ.LST"), name);
    EXPECT_NE(holdName(directory, L"c:\\plans\\hiver.lst"), name);
    EXPECT_NE(holdName({7, {2}}, L"c:\\plans\\Été.lst"), name);
    EXPECT_NE(holdName({8, {1}}, L"c:\\plans\\Été.lst"), name);
    // Where all directories are alike the path tells.
    EXPECT_NE(holdName({7, {}}, L"c:\\a\\x.lst"), holdName({7, {}}, L"c:\\b\\x.lst"));
}
