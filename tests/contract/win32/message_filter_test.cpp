// What the message filter answers when a busy program refused a call, which Wine never asks, and
// what it does when something comes while one is out.

#include "win32/com/message_filter.h"

#include <objbase.h>

#include "contract/win32/real_windows.h"
#include "fakes/fake_services.h"
#include "fakes/fake_waiting.h"
#include "win32/window/waiting.h"

/// COM keeps a filter for each thread that it serves.
struct MessageFilterTest : RealWindowTest {
    MessageFilterTest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~MessageFilterTest() override { CoUninitialize(); }
};

// COM counts from the call on, which hung for twelve seconds here; we from the first refusal on.
TEST_F(MessageFilterTest, RepeatsARefusedCallFromTheFirstRefusalOn) {
    constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
    constexpr DWORD kHung = 12'000;
    FakeWaiting clock;
    FakeMessageBoxes noBoxes;
    Patience patience(clock, noBoxes, judge);
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

// On Windows it is all that a click on the frame comes to while a call is out.
TEST_F(MessageFilterTest, HearsTheFrameWhileACallIsOut) {
    WinBusyWaiting waiting(judge);
    FakeMessageBoxes noBoxes;
    Patience patience(waiting, noBoxes, judge);
    MessageFilter filter(patience);
    const auto window = factory.create({.dialogId = IDD_CONTRACT}, *this);
    window->show();
    gate.run([&] {
        const CallOut out(judge);
        PostMessageW(dialog(), WM_SYSCOMMAND, SC_CLOSE, 0);
        EXPECT_EQ(filter.MessagePending(nullptr, 0, 0), PENDINGMSG_WAITDEFPROCESS);
        EXPECT_TRUE(raised.empty());
        EXPECT_TRUE(judge.situation().closeAsked);
    });
    EXPECT_EQ(raised, (RaisedEvents{{kTheWindow, Event::Close}}));
}
