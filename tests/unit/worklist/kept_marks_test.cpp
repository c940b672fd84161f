#include "worklist/kept_marks.h"

#include "fakes/fake_record_files.h"
#include "unit/worklist/pass_fixture.h"
#include "worklist/mark_keeper.h"

namespace {

constexpr wchar_t kRecord[] = L"c:\\liste.reprise";

/// A pass whose marks are kept.
struct KeptMarks : PassFixture {
    /// Started on a list with this text.
    void begin(const std::string& text) {
        listFile = text;
        PassFixture::begin(text);
        keeper.emplace(files, L"c:\\liste.LST", clock);
        keeper->begin(ListIdentity(text), pass->list());
        pass->start();
    }

    /// Opens the current line's document as the window does.
    void open(bool succeeds = true) {
        pass->openCurrent();
        keeper->keep(pass->list(), pass->list().lines[pass->current()].fileLine);
        if (succeeds) keeper->opened();
    }

    void advance(std::string_view mark, Saved saved = Saved::Unknown) {
        if (pass->advance(mark, saved)) {
            open();
        } else {
            keeper->keep(pass->list());
        }
    }

    std::string record() { return files.contents.at(kRecord); }
    bool hasRecord() { return files.contents.contains(kRecord); }

    /// What a next run reads of these bytes.
    std::optional<KeptState> read(const std::string& bytes) {
        Pass next(clock);
        next.read(listFile);
        return readKeptMarks(bytes, ListIdentity(listFile),
                             static_cast<std::size_t>(next.list().lineCount()));
    }

    /// The codes of a next run that takes over what was kept, lines in progress as to do.
    std::string resumed() {
        Pass next(clock);
        next.read(listFile);
        if (const auto kept = read(record())) next.restore(*kept);
        return codesOf(next);
    }

    FakeRecordFiles files;
    std::string listFile;
    std::optional<MarkKeeper> keeper;
};

}  // namespace

TEST_F(KeptMarks, AreThereOnlyWhileThereIsSomethingToOffer) {
    begin(listOf("000"));
    open(false);
    EXPECT_EQ(read(record())->opening, 0);
    keeper->opened();
    EXPECT_FALSE(hasRecord() || keeper->keeps());
    advance(state::kToDo);
    EXPECT_FALSE(hasRecord());
    advance(state::kDone, Saved::No);
    EXPECT_TRUE(keeper->keeps());
    EXPECT_EQ(read(record())->opening, std::nullopt);
    EXPECT_EQ(resumed(), "010");
    pass->reset(only({1}));
    keeper->keep(pass->list());
    EXPECT_FALSE(hasRecord() || keeper->keeps());
}

TEST_F(KeptMarks, GiveBackEveryCommandsWork) {
    begin(listOf(std::vector<std::string>{"0", "12", "x", "0", "3", "0", "0", "2"}));
    open();
    clock.seconds += 7;
    advance(state::kDone, Saved::Yes);
    advance(state::kToDo);
    pass->stepBack();
    open();
    pass->eliminate(only({0, 7}), Eliminate::DoneAndSeen);
    open();
    pass->change(only({1}), state::kDone);
    open();
    const std::string now = codesOf(*pass);
    EXPECT_EQ(now, "213000");  // one eliminated at each end; "x" became "1"
    Pass next(clock);
    next.read(listFile);
    const auto kept = read(record());
    EXPECT_EQ(changedLines(next.list(), *kept), 3);
    next.restore(*kept);
    for (int i = 0; i <= pass->list().last; ++i) {
        const WorkLine& line = pass->list().lines[i];
        const WorkLine& again = next.list().lines[i];
        const auto settled = [](std::string_view code) { return code == "3" ? "0" : code; };
        EXPECT_EQ(settled(again.code), settled(line.code)) << i;
        EXPECT_EQ(again.path, line.path) << i;
        EXPECT_EQ(again.reload, line.reload) << i;
        EXPECT_EQ(again.history.markedAt, line.history.markedAt) << i;
    }
    EXPECT_EQ(next.list().last, pass->list().last);
}

TEST_F(KeptMarks, BelongToOneListOnly) {
    begin(listOf("00"));
    advance(state::kDone);
    listFile[4] = 'C';
    EXPECT_FALSE(read(record()));
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read("Tarnwick reprise 1\n"));
}

TEST_F(KeptMarks, OfATornOrSpoiledRecordAreThoseBefore) {
    begin(listOf("00000000"));
    std::vector<std::string> atEachStep;
    std::vector<std::size_t> ends;
    for (const auto mark : {state::kDone, state::kSeen, state::kDone, state::kToDo, state::kSeen}) {
        advance(mark);
        atEachStep.push_back(resumed());
        ends.push_back(record().size());
    }
    const std::string whole = record();
    const auto codesFrom = [&](const std::string& bytes) {
        files.contents[kRecord] = bytes;
        return resumed();
    };
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string codes = codesFrom(whole.substr(0, length));
        EXPECT_LE(codes, codesFrom(whole)) << length;
        EXPECT_EQ(codesFrom(whole.substr(0, length) + "foreign bytes"), codes) << length;
        for (std::size_t i = 0; i < ends.size(); ++i) {
            if (ends[i] == length) {
                EXPECT_EQ(codes, atEachStep[i]);
            }
        }
    }
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string spoiled = whole;
        spoiled[at] = static_cast<char>(spoiled[at] ^ 0x20);
        const std::string codes = codesFrom(spoiled);
        // What stood before is read, but for a spoiled header, and nothing false.
        const auto step = std::ranges::upper_bound(ends, at) - ends.begin();
        const std::string before = step == 0 ? "00000000" : atEachStep[step - 1];
        EXPECT_TRUE(codes == before || codes == atEachStep[step]) << at << ": " << codes;
    }
}

TEST_F(KeptMarks, ThatCannotBeWrittenStopNoPass) {
    for (int writes = 0; writes < 8; ++writes) {
        files.contents.clear();
        files.writesUntilFailure = writes;
        begin(listOf("0000"));
        open();
        int told = keeper->takeFailure();
        for (int i = 0; i < 3; ++i) {
            advance(state::kDone);
            told += keeper->takeFailure();
        }
        EXPECT_EQ(codesOf(*pass), "1113");
        // The first opening leaves no record, each mark but the first is one write and one more
        // tells that the next document is open.
        EXPECT_EQ(told, writes < 7 ? 1 : 0) << writes;
    }
}

TEST_F(KeptMarks, OfALongPassTakeLessThanTwiceTheList) {
    constexpr int kLines = 1500;
    begin(listOf(std::string(kLines, '0')));
    open();
    std::size_t largest = 0;
    for (int i = 0; i < kLines; ++i) {
        clock.seconds += 61;
        advance(i % 3 == 0 ? state::kSeen : state::kDone, Saved::Yes);
        largest = std::max(largest, record().size());
    }
    for (int i = 0; i < 40; ++i) {
        pass->change([&](int line) { return line % 2 == 0; }, i % 2 ? state::kDone : state::kSeen);
        keeper->keep(pass->list());
        largest = std::max(largest, record().size());
    }
    EXPECT_LT(largest, 2 * listFile.size());
    EXPECT_EQ(resumed(), codesOf(*pass));
}

TEST_F(KeptMarks, CostOneFlushACommand) {
    begin(listOf("00000"));
    advance(state::kDone);
    files.flushes = 0;
    advance(state::kDone);
    advance(state::kSeen);
    EXPECT_EQ(files.flushes, 2);
}
