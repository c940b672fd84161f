
#include "rules/patience.h"

#include "fakes/fake_services.h"
#include "fakes/fake_waiting.h"
#include "rules/late_binding.h"
#include "unit/unit_test.h"

using Answer = MessageBoxes::Answer;

struct PatienceTest : testing::Test {
    FakeWaiting machine;
    FakeMessageBoxes boxes;
    Patience patience{machine, boxes, machine.judge};

    /// A call that is refused for so long from the first attempt on; each answer takes its time.
    CallResult callRefusedFor(std::uint64_t refused, std::uint64_t answerTime = 10) {
        const std::uint64_t end = machine.time + refused;
        return patience.call([&, end] {
            machine.time += answerTime;
            return machine.time < end ? call_result::kRejected : 0;
        });
    }
};

TEST_F(PatienceTest, RetriesAtOnceThenAtGrowingIntervals) {
    EXPECT_EQ(callRefusedFor(3'000), 0);
    EXPECT_EQ(machine.waits, (std::vector<unsigned>{50, 70, 150, 310, 630, 1000, 1000}));
    EXPECT_EQ(callRefusedFor(9'000), 0);
    EXPECT_EQ(boxes.shown.size(), 0U);
}

TEST_F(PatienceTest, AsksTheUserTenSecondsAfterTheFirstRefusal) {
    for (unsigned retries = 0; retries < 3; ++retries) {
        patience.promiseMarksWhen([&] { return retries == 1; });
        boxes.answers.assign(retries, Answer::Retry);
        boxes.answers.push_back(Answer::Cancel);
        const std::uint64_t start = machine.time;
        EXPECT_EQ(callRefusedFor(600'000), call_result::kRejected);
        const auto texts = boxes.takeTexts();
        EXPECT_EQ(texts.size(), retries + 1);
        EXPECT_EQ(has(texts.back(), L"marques"), retries == 1);
        EXPECT_GE(machine.time - start, 10'000U * (retries + 1));
        EXPECT_LT(machine.time - start, 12'000U * (retries + 1));
    }
}

// The application hangs for twelve seconds before it refuses: that time doesn't count.
TEST_F(PatienceTest, CountsFromTheFirstRefusalNotFromTheCall) {
    machine.time += 12'000;
    EXPECT_EQ(patience.afterRefusal(), 0U);
    EXPECT_EQ(callRefusedFor(20'000, 12'000), 0);
    EXPECT_EQ(boxes.shown.size(), 0U);
}

// Where COM asks its filter, the same clock serves the filter and then the caller.
TEST_F(PatienceTest, SharesOneClockWithTheMessageFilter) {
    boxes.answers = {Answer::Cancel};
    const CallResult result = patience.call([&] {
        machine.time += 12'000;
        while (const auto wait = patience.afterRefusal()) machine.time += *wait + 10;
        return call_result::kRetryLater;
    });
    EXPECT_EQ(result, call_result::kRetryLater);
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(machine.waits.size(), 0U) << "the caller waited once more";
}

TEST_F(PatienceTest, AsksWhoClosedTheWindowWhetherToWaitForACallThatDoesNotReturn) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        boxes.shown.clear();
        boxes.answers = {answer};
        patience.call([&] {
            patience.whilePending();
            EXPECT_EQ(machine.wakesIn, 0U) << "nobody closed it";
            machine.judge.judge({.kind = Deed::Kind::Event, .closes = true});
            patience.whilePending();
            EXPECT_EQ(std::exchange(machine.wakesIn, 0), 1'000U);
            machine.time += 30'000;
            patience.whilePending();
            patience.whilePending();
            return 0;
        });
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(machine.programEnded, answer == Answer::Yes);
    }
    EXPECT_EQ(
        boxes.shown.front(),
        (MessageBoxContent{.text = L"SolidWorks ne répond pas.\r\nQuitter Tarnwick sans attendre ?",
                           .title = L"Tarnwick",
                           .buttons = MessageBoxContent::Buttons::YesNo,
                           .icon = MessageBoxContent::Icon::Warning,
                           .defaultButton = 2}));
}

TEST_F(PatienceTest, LetsASenderGoOnDuringWhoseMessageNoCallMayGoOut) {
    machine.senderWaits = true;
    EXPECT_EQ(patience.call([&] { return machine.senderWaits ? call_result::kInSentMessage : 0; }),
              0);
}
