// What the message filter answers when a busy program refused a call. Wine never asks it.

#include "win32/com/message_filter.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include "fakes/fake_message_boxes.h"
#include "fakes/fake_waiting.h"
#include "rules/patience.h"

namespace {

/// COM keeps a filter for each thread that it serves.
struct MessageFilterTest : testing::Test {
    MessageFilterTest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~MessageFilterTest() override { CoUninitialize(); }
};

}  // namespace

// COM counts from the call on, which hung for twelve seconds here; we from the first refusal on.
TEST_F(MessageFilterTest, RepeatsARefusedCallFromTheFirstRefusalOn) {
    constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
    constexpr DWORD kHung = 12'000;
    FakeWaiting clock;
    FakeMessageBoxes boxes;
    Patience patience(clock, boxes);
    MessageFilter filter(patience);
    const std::pair<DWORD, DWORD> answers[] = {
        {0, 0}, {30, 100}, {5'000, 1'000}, {9'999, 1'000}, {10'000, kGiveUp}};
    for (const auto& [sinceRefusal, answer] : answers) {
        clock.time = kHung + sinceRefusal;
        EXPECT_EQ(filter.RetryRejectedCall(nullptr, kHung + sinceRefusal, SERVERCALL_RETRYLATER),
                  answer)
            << sinceRefusal;
    }
}
