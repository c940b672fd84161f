// What the message filter answers when a busy program refused a call. Wine never asks it.

#include "platform/win32/com/message_filter.h"

#include <gtest/gtest.h>

#include "platform/win32/com/call_out.h"

TEST(MessageFilter, RepeatsARefusedCallByThePolicy) {
    constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
    MessageFilter filter;
    const CallOut out;
    EXPECT_EQ(filter.RetryRejectedCall(nullptr, 0, SERVERCALL_RETRYLATER), 0U);
    EXPECT_EQ(filter.RetryRejectedCall(nullptr, 30, SERVERCALL_RETRYLATER), 100U);
    EXPECT_EQ(filter.RetryRejectedCall(nullptr, 5'000, SERVERCALL_REJECTED), 1'000U);
    EXPECT_FALSE(CallOut::repeatedInVain());
    EXPECT_EQ(filter.RetryRejectedCall(nullptr, 10'000, SERVERCALL_REJECTED), kGiveUp);
    EXPECT_TRUE(CallOut::repeatedInVain());
}
