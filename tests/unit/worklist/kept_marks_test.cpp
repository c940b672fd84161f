#include "worklist/kept_marks.h"

#include <array>
#include <random>

#include "common/bytes.h"
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
        keeper->begin(ContentIdentity(text), pass->list());
        pass->start();
    }

    /// Opens the current line's document as the window does.
    void open(bool succeeds = true) {
        pass->openCurrent();
        keeper->keep(pass->list(), pass->list().lines[pass->current()].fileLine);
        if (succeeds) keeper->settle(pass->list());
    }

    void advance(LineState mark, Saved saved = Saved::Unknown) {
        if (pass->advance(mark, saved)) {
            open();
        } else {
            keeper->keep(pass->list());
        }
    }

    std::string record() { return files.contents[kRecord]; }
    bool hasRecord() { return !record().empty(); }

    /// What a next run reads of these bytes.
    std::optional<KeptState> read(const std::string& bytes) {
        Pass next(clock);
        next.read(listFile);
        return readKeptMarks(bytes, ContentIdentity(listFile),
                             static_cast<std::size_t>(next.list().lineCount()));
    }

    /// A next run that takes over what was kept.
    Pass nextRun() {
        Pass next(clock);
        next.read(listFile);
        const auto kept = hasRecord() ? read(record()) : std::nullopt;
        if (kept) next.restore(*kept);
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

}  // namespace

TEST_F(KeptMarks, AreThereOnlyWhileThereIsSomethingToOffer) {
    begin(listOf("000"));
    open(false);
    EXPECT_EQ(read(record())->opening, 0);
    keeper->settle(pass->list());
    EXPECT_FALSE(hasRecord() || keeper->keeps());
    advance(LineState::ToDo);
    EXPECT_FALSE(hasRecord());
    advance(LineState::Done, Saved::No);
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
        [&] { pass->advance(upTo(3) ? LineState::Done : LineState::ToDo, Saved::Yes); },
        [&] { pass->current() < 0 || pass->stepBack(); },
        [&] { pass->current() < 0 || pass->pastEnd() ? pass->closeOpen() : pass->openCurrent(); },
        [&] {
            if (pass->current() < 0 || pass->pastEnd()) return;
            Remark remark{.opening = static_cast<Remark::Opening>(upTo(3)),
                          .warnings = upTo(1) * 130};
            if (remark.opening != Remark::Opening::Silent) remark.openingNumber = upTo(1) - 1;
            pass->noteOpening(remark);
            if (upTo(1)) pass->noteSaving(Remark::Saving::Refused, upTo(400));
        },
        [&] { pass->moveTo(anyLine()); },
        [&] { pass->startAt(anyLine()); },
        [&] { pass->startAfter(anyLine()); },
        [&] { pass->resumeAt(anyLine()); },
        [&] { pass->eliminate(some, Eliminate::DoneAndSeen); },
        [&] { pass->reset(some); },
        [&] { pass->change(some, LineState::Done); },
    };
    const std::array kinds{"3", "12", "x"};
    for (int step = 0; step < 16000; ++step) {
        if (step % 40 == 0) {
            std::vector<std::string> codes;
            for (int i = upTo(16); i >= 0; --i) codes.push_back(i % 4 ? "0" : kinds[upTo(2)]);
            begin(listOf(codes));
        }
        clock.seconds += 7;
        commands.at(std::min({upTo(10), upTo(10), upTo(10)}))();  // those of one line more often
        if (upTo(2) != 0) continue;  // a call to the CAD application does not follow on each
        keeper->keep(pass->list());
        expectNothingLost();
    }
}

TEST_F(KeptMarks, OfTheReleaseBeforeAreStillRead) {
    begin(listOf("00"));
    const ContentIdentity list(listFile);
    std::string bytes = "Tarnwick reprise 1\n";
    appendFixed<std::uint64_t>(bytes, list.length());
    appendFixed<std::uint64_t>(bytes, list.hash());
    appendFixed<std::uint32_t>(bytes, 2);
    appendFixed<std::uint64_t>(bytes, 1'763'000'000);
    appendFixed<std::uint32_t>(bytes, crc32(bytes));
    // No document being opened; the second line done, at once, and saved.
    std::string record("\4\0\0\0\0\1\x51\0", 8);
    appendFixed<std::uint32_t>(record, crc32(record, crc32(bytes)));
    const auto kept = read(bytes + record);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->lines[0], KeptLine());
    EXPECT_EQ(kept->lines[1],
              (KeptLine{KeptLine::State::Done, {1'763'000'000, -1, Saved::Yes, {}}}));
}

TEST_F(KeptMarks, BelongToOneListOnly) {
    begin(listOf("00"));
    advance(LineState::Done);
    listFile[4] = 'C';
    EXPECT_FALSE(read(record()));
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read("Tarnwick reprise 1\n"));
}

TEST_F(KeptMarks, OfATornOrSpoiledRecordAreThoseBefore) {
    begin(listOf("00000000"));
    std::vector<std::string> atEachStep;
    std::vector<std::size_t> ends;
    for (const auto mark :
         {LineState::Done, LineState::Seen, LineState::Done, LineState::ToDo, LineState::Seen}) {
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
    // After a save the next failure is a new one.
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
    for (int i = 0; i < kLines; ++i) {
        clock.seconds += 61;
        advance(i % 3 == 0 ? LineState::Seen : LineState::Done, Saved::Yes);
        largest = std::max(largest, record().size());
    }
    for (int i = 0; i < 40; ++i) {
        pass->change([&](int line) { return line % 2 == 0; },
                     i % 2 ? LineState::Done : LineState::Seen);
        keeper->keep(pass->list());
        largest = std::max(largest, record().size());
    }
    EXPECT_LT(largest, 2 * listFile.size());
    EXPECT_EQ(resumed(), codesOf(*pass));
}
