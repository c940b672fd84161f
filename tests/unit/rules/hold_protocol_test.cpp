#include "rules/hold_protocol.h"

#include <deque>

#include "unit/unit_test.h"

using enum HoldFileState;

const ListHolder kUs{L"jean", L"PC-1"};
const ListHolder kZoe{L"zoé", L"PC-2"};

/// The machine as the list's owner in this session and the file beside the list change it, step by
/// step; the last thing told of each holds on.
struct HoldScript {
    std::deque<bool> owned{true};
    std::deque<bool> raised{true};
    std::deque<HoldFileState> files{Ours};
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

TEST(HoldProtocol, FindsOutWhoHasAList) {
    const HoldAnswer kHeld{}, kHidden{.hidden = true}, kRaised{HoldAnswer::Kind::RaisedOther};
    const HoldAnswer kByZoe{HoldAnswer::Kind::HeldElsewhere, kZoe};
    const HoldAnswer kByUs{HoldAnswer::Kind::HeldElsewhere, kUs};
    const std::tuple<const char*, HoldScript, HoldAnswer, int> cases[] = {
        {"nobody", {}, kHeld, 0},
        {"a program with a window", {.owned = {false}}, kRaised, 0},
        {"one just starting", {.owned = {false}, .raised = {false, false, true}}, kRaised, 2},
        {"one just ending", {.owned = {false, false, true}, .raised = {false}}, kHeld, 2},
        {"one that shows nothing", {.owned = {false}, .raised = {false}}, kRaised, 200},
        {"another machine", {.files = {Theirs}}, kByZoe, 0},
        {"one just starting", {.files = {Theirs}, .holders = {{}, {}, kZoe}}, kByZoe, 2},
        {"ours just ending", {.files = {Theirs, Busy, Ours}, .holders = {kUs}}, kHeld, 2},
        {"us in another session", {.files = {Theirs}, .holders = {kUs}}, kByUs, 40},
        {"a backup that reads the file", {.files = {Busy}}, kHidden, 40},
        {"one that soon has done", {.files = {Busy, Ours}}, kHeld, 1},
        {"a file left over that is protected", {.files = {Blocked}}, kHidden, 0},
        {"a directory that can't be written in", {.files = {Unusable}}, kHeld, 0},
    };
    for (const auto& [what, script, expected, pauses] : cases) {
        ScriptedSteps steps(script);
        const HoldAnswer answer = takeHold(steps, kUs);
        EXPECT_EQ(answer.kind, expected.kind) << what;
        EXPECT_EQ(answer.holder, expected.holder) << what;
        EXPECT_EQ(answer.hidden, expected.hidden) << what;
        EXPECT_EQ(steps.pauses, pauses) << what;
    }
}

TEST(HoldProtocol, TellsAHeldFileFromOneThatCannotBeWritten) {
    constexpr std::uint32_t kNotFound = 2, kDenied = 5, kShared = 32, kWriteProtected = 19;
    const std::tuple<std::uint32_t, std::uint32_t, HoldFileState> cases[] = {
        {0, 0, Ours},
        {kShared, kShared, Theirs},
        {kDenied, kShared, Theirs},  // another user's, where each may write his own
        {kShared, 0, Busy},          // a reader has it
        {kShared, kNotFound, Busy},  // gone meanwhile
        {kDenied, kDenied, Busy},    // about to go
        {kDenied, kNotFound, Unusable},
        {kDenied, 0, Blocked},  // left over, another user's or read-only
        {kWriteProtected, kNotFound, Unusable}};
    for (const auto& [creating, looking, state] : cases) {
        EXPECT_EQ(holdFileState(creating, looking), state) << creating << ' ' << looking;
    }
}

TEST(HoldProtocol, TakesALostFileAgainAndTellsOnceOfAnotherHolder) {
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
