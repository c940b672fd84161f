
#include <random>

#include "common/bytes.h"
#include "fakes/fake_files.h"
#include "unit/worklist/pass_fixture.h"
#include "worklist/list_file.h"
#include "worklist/mark_keeper.h"

constexpr wchar_t kRecord[] = L"c:\\liste.reprise";

/// A pass whose marks are kept.
struct KeptMarks : PassFixture {
    /// Started on a list with this text.
    void begin(const std::string& text) {
        listFile = text;
        PassFixture::begin(text);
        keeper.emplace(files, L"c:\\liste.LST", clock);
        keeper->begin(ContentIdentity(text), pass->list());
        pass->start();
    }

    /// Opens the current line's document as the window does.
    void open(bool succeeds = true) {
        pass->openCurrent();
        keeper->keep(pass->list(), pass->list().lines[pass->current()].fileLine);
        if (succeeds) keeper->settle(pass->list());
    }

    void advance(LineState mark) { pass->advance(mark) ? open() : keeper->keep(pass->list()); }

    std::string record() { return files.contents[kRecord]; }
    bool hasRecord() { return !record().empty(); }

    /// What a next run reads of these bytes.
    std::optional<KeptState> read(const std::string& bytes) {
        const auto lines = std::ranges::count(listFile, '\n');
        return readKeptMarks(bytes, ContentIdentity(listFile), static_cast<std::size_t>(lines));
    }

    /// A next run that takes over what was kept.
    Pass nextRun() {
        Pass next(clock);
        next.read(listFile);
        if (const auto kept = read(record())) next.restore(*kept);
        return next;
    }

    /// Its codes, lines in progress as to do.
    std::string resumed() { return codesOf(nextRun()); }

    void expectNothingLost() {
        const Pass next = nextRun();
        const auto settled = [](const StateCode& code) {
            return code == LineState::InProgress ? LineState::ToDo : code;
        };
        ASSERT_EQ(next.list().last, pass->list().last);
        for (int i = 0; i <= next.list().last; ++i) {
            const WorkLine& line = pass->list().lines[i];
            const WorkLine& again = next.list().lines[i];
            EXPECT_EQ(settled(again.code), settled(line.code)) << i;
            EXPECT_EQ(again.path, line.path) << i;
            EXPECT_EQ(again.reload, line.reload) << i;
            EXPECT_TRUE(!hasRecord() || again.history == line.history) << i;
        }
    }

    FakeRecordFiles files;
    std::string listFile;
    std::optional<MarkKeeper> keeper;
};

TEST_F(KeptMarks, AreThereOnlyWhileThereIsSomethingToOffer) {
    begin(listOf("000"));
    open(false);
    EXPECT_EQ(read(record())->opening, 0);
    keeper->settle(pass->list());
    EXPECT_FALSE(hasRecord() || keeper->keeps());
    advance(LineState::ToDo);
    EXPECT_FALSE(hasRecord());
    advance(LineState::Done);
    EXPECT_TRUE(keeper->keeps());
    EXPECT_EQ(read(record())->opening, std::nullopt);
    EXPECT_EQ(resumed(), "010");
    files.flushes = 0;
    advance(LineState::Seen);
    EXPECT_EQ(files.flushes, 1);
    pass->reset(only({1, 2}));
    keeper->keep(pass->list());
    EXPECT_FALSE(hasRecord() || keeper->keeps());
    EXPECT_TRUE(files.contents.contains(kRecord));  // not made anew by the next one
    keeper.reset();
    EXPECT_TRUE(files.contents.empty());
    // Nor is what an earlier run kept removed by one that did not come to offer it.
    files.contents[kRecord] = "…";
    begin(listOf("000"));
    keeper.reset();
    EXPECT_TRUE(hasRecord());
}

TEST_F(KeptMarks, GiveBackTheWorkOfAnyCommands) {
    std::mt19937 random(1);
    const auto upTo = [&](int most) { return static_cast<int>(random() % (most + 1U)); };
    const auto anyLine = [&] { return upTo(pass->list().lineCount()); };
    const auto some = [&](int) { return upTo(3) == 0; };
    const std::vector<std::function<void()>> commands{
        [&] { pass->advance(upTo(3) ? LineState::Done : LineState::ToDo); },
        [&] { pass->current() < 0 || pass->stepBack(); },
        [&] { pass->current() < 0 || pass->pastEnd() ? pass->closeOpen() : pass->openCurrent(); },
        [&] {
            if (pass->current() < 0 || pass->pastEnd()) return;
            Remark remark{.opening = static_cast<Remark::Opening>(upTo(3)),
                          .warnings = upTo(1) * 130};
            if (remark.opening != Remark::Opening::Silent) remark.openingNumber = upTo(1) - 1;
            pass->noteOpening(remark);
            if (upTo(1)) pass->noteSaving(Saved::No, Remark::Saving::Refused, upTo(400));
            if (upTo(1)) pass->noteSaving(Saved::Yes, Remark::Saving::Silent, 0);
        },
        [&] { pass->moveTo(anyLine()); },
        [&] { pass->startAt(anyLine()); },
        [&] { pass->startAfter(anyLine()); },
        [&] { pass->resumeAt(anyLine()); },
        [&] { pass->eliminate(some, Eliminate::DoneAndSeen); },
        [&] { pass->reset(some); },
        [&] { pass->change(some, LineState::Done); },
    };
    const std::vector<const char*> kinds{"3", "12", "x"};
    for (int step = 0; step < 16000; ++step) {
        if (step % 40 == 0) {
            std::vector<std::string> codes;
            for (int i = upTo(16); i >= 0; --i)
                codes.push_back(i % 4 ? "0" : kinds[static_cast<std::size_t>(upTo(2))]);
            begin(listOf(codes));
        }
        clock.seconds += 8;  // for numbers that end in seven bits
        commands.at(std::min({upTo(10), upTo(10), upTo(10)}))();  // those of one line more often
        if (upTo(2) != 0) continue;  // a call to the CAD application does not follow on each
        keeper->keep(pass->list());
        expectNothingLost();
    }
}

// In the bytes of the release before: a record for two lines, which begins with no document being
// opened.
TEST_F(KeptMarks, AreReadByteByByteAndNothingThatMakesNoSense) {
    using std::string_literals::operator""s;
    constexpr std::int64_t kBase = 1'763'000'000;
    using enum KeptLine::State;
    const KeptLine none;
    const std::tuple<std::string, KeptLine, KeptLine> cases[] = {
        {"\1\x51\0"s, none, {Done, {kBase, -1, Saved::Yes, {}}}},
        {"\0\x09\2"s, {Done, {}}, {Done, {}}},
        {"\0\x09\3"s, none, none},  // a line too many
        {"\0\x09\0"s, none, none},  // no line at all
        {"\2\1"s, none, none},      // past the list
        {"\x80\x80\x80\x80\x80\x20\1"s, none, none},
        {"\0\5"s, none, none},  // no such state
        {"\0\xC1"s, none, none},
        {"\0\x21\xFF\xFF\xFF\xFF\7"s, {Done, {0, 0x7FFFFFFF, {}, {}}}, none},
        {"\0\x21\x80\x80\x80\x80\10"s, none, none},                 // open for ever
        {"\0\x11\xFF\xFF\xFF\xFF\xFF\x7F"s, {Done, {}}, none},      // before all time
        {"\0\x11\x80\x80\x80\x80\x80\x80\x01"s, {Done, {}}, none},  // and past it
    };
    begin(listOf("00"));
    const ContentIdentity list(listFile);
    std::string header = "Tarnwick reprise 1\n";
    appendFixed<std::uint64_t>(header, list.length());
    appendFixed<std::uint64_t>(header, list.hash());
    appendFixed<std::uint32_t>(header, 2);
    appendFixed<std::uint64_t>(header, kBase);
    appendFixed<std::uint32_t>(header, crc32(header));
    for (const auto& [entries, first, second] : cases) {
        std::string record;
        appendFixed<std::uint32_t>(record, static_cast<std::uint32_t>(entries.size() + 1));
        record += '\0' + entries;
        appendFixed<std::uint32_t>(record, crc32(record, crc32(header)));
        const auto kept = read(header + record);
        ASSERT_TRUE(kept);
        EXPECT_EQ(kept->lines, (std::vector{first, second})) << testing::PrintToString(entries);
    }
    EXPECT_EQ(crc32("123456789"), 0xCBF43926U) << "as everybody computes it";
    WorkList inProgress;
    ASSERT_TRUE(parseListFile("3  c:\\a\r\n", inProgress));
    EXPECT_EQ(changedLines(inProgress, {{{ToDo, {}}}, {}}), 0) << "in progress counts as to do";
    listFile[4] = 'C';  // another list
    for (const std::string& bad : {header, ""s, "Tarnwick reprise 1\n"s}) EXPECT_FALSE(read(bad));
}

TEST_F(KeptMarks, OfATornOrSpoiledRecordAreThoseBefore) {
    begin(listOf("00000000"));
    std::map<std::size_t, std::string> codesUpTo{{0, resumed()}};  // by lengths of the record
    for (const auto mark :
         {LineState::Done, LineState::Seen, LineState::Done, LineState::ToDo, LineState::Seen}) {
        advance(mark);
        codesUpTo[record().size()] = resumed();
    }
    const std::string whole = record();
    const auto codesFrom = [&](const std::string& bytes) {
        files.contents[kRecord] = bytes;
        return resumed();
    };
    for (std::size_t at = 0; at < whole.size(); ++at) {
        const auto step = codesUpTo.upper_bound(at);
        const std::string before = std::prev(step)->second;
        const std::string torn = codesFrom(whole.substr(0, at));
        EXPECT_TRUE(torn == before || (torn == step->second && !codesUpTo.contains(at))) << at;
        EXPECT_EQ(codesFrom(whole.substr(0, at) + "foreign bytes"), torn) << at;
        // What stood before is read, but for a spoiled header, and nothing false.
        std::string bytes = whole;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x20);
        const std::string spoiled = codesFrom(bytes);
        EXPECT_TRUE(spoiled == before || spoiled == step->second) << at << ": " << spoiled;
    }
}

TEST_F(KeptMarks, ThatCannotBeWrittenStopNoPassAndAreTriedAgainAtEachMark) {
    constexpr int kMarks = 5;
    // Which writes fail: none, one of each kind in turn, several, all from one on.
    for (int first = 0; first < 14; ++first) {
        for (const int many : {1, 2, 3, 1000}) {
            SCOPED_TRACE(std::to_string(first) + " " + std::to_string(many));
            files = {};
            files.fails = [=](int write) { return write >= first && write < first + many; };
            begin(listOf(std::string(kMarks + 1, '0')));
            open();
            bool failedBefore = keeper->takeFailure();
            for (int i = 0; i < kMarks; ++i) {
                clock.seconds += 60;
                advance(LineState::Done);
                // What is promised is on the disk; a failure is told when it begins, and once.
                if (keeper->keeps()) expectNothingLost();
                const bool failed = !keeper->keeps();
                EXPECT_EQ(keeper->takeFailure(), failed && !failedBefore) << i;
                EXPECT_FALSE(keeper->takeFailure());
                failedBefore = failed;
            }
            EXPECT_EQ(codesOf(*pass), "111113");
            const bool wellAtLast = files.writes <= first || files.writes > first + many;
            EXPECT_EQ(keeper->keeps(), wellAtLast);
        }
    }
    // Each new failure is told, after a save as well.
    files = {};
    begin(listOf("00000"));
    for (const bool fails : {true, false, true}) {
        files.fails = [=](int) { return fails; };
        advance(LineState::Done);
        EXPECT_EQ(keeper->takeFailure(), fails);
    }
    files.fails = [](int) { return true; };
    begin(listOf("000"));
    for (int saves = 0; saves < 2; ++saves) {
        advance(LineState::Done);
        EXPECT_TRUE(keeper->takeFailure());
        pass->takeAsSaved();
        keeper->forget();
        keeper->begin(ContentIdentity(listFile), pass->list());
    }
}

TEST_F(KeptMarks, OutliveTheFileThatSomebodyTakesAway) {
    begin(listOf("0000"));
    advance(LineState::Done);
    files.contents.clear();
    advance(LineState::Seen);
    EXPECT_EQ(resumed(), "1200");
    EXPECT_FALSE(keeper->takeFailure());
}

TEST_F(KeptMarks, OfALongPassTakeLessThanTwiceTheList) {
    constexpr int kLines = 1500;
    begin(listOf(std::string(kLines, '0')));
    open();
    std::size_t largest = 0;
    for (int i = 0; i < kLines + 40; ++i) {
        clock.seconds += 61;
        const LineState mark = i % 3 == 0 ? LineState::Seen : LineState::Done;
        const auto everyOther = [](int line) { return line % 2 == 0; };
        i < kLines ? advance(mark) : void(pass->change(everyOther, mark));
        keeper->keep(pass->list());
        largest = std::max(largest, record().size());
    }
    EXPECT_LT(largest, 2 * listFile.size());
    EXPECT_EQ(resumed(), codesOf(*pass));
}
