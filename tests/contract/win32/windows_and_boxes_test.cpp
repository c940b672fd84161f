// How the program's windows and boxes stand to each other while another program is in front.

#include <windows.h>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

#include "contract/contract_ids.h"
#include "platform/win32/process/message_pump.h"
#include "platform/win32/window/dialog_window.h"
#include "platform/win32/window/hourglass.h"
#include "platform/win32/window/own_windows.h"
#include "platform/win32/window/win_gate_keeper.h"
#include "platform/win32/window/win_message_boxes.h"

namespace {

constexpr wchar_t kTitle[] = L"Une question";

/// Serves this thread's windows until something is so, or far too long.
bool eventually(const std::function<bool()>& isSo) {
    for (int i = 0; i < 1000 && !isSo(); ++i) {
        MsgWaitForMultipleObjectsEx(0, nullptr, 10, QS_ALLINPUT, 0);
        handleWaitingMessages();
    }
    return isSo();
}

/// A window of another thread, which is to ours what another program is.
class OtherProgram {
 public:
    OtherProgram() : thread_([this] { run(); }) {
        eventually([this] { return window_.load() != nullptr; });
    }
    ~OtherProgram() {
        PostMessageW(window_, WM_CLOSE, 0, 0);
        thread_.join();
    }

    bool comesForward() {
        SetForegroundWindow(window_);
        return eventually([this] { return GetForegroundWindow() == window_; });
    }

 private:
    void run() {
        window_ = CreateWindowW(L"Static", L"Autre", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                100, nullptr, nullptr, nullptr, nullptr);
        MSG message;
        while (IsWindow(window_) && GetMessageW(&message, nullptr, 0, 0) > 0) {
            DispatchMessageW(&message);
        }
    }

    std::atomic<HWND> window_ = nullptr;
    std::thread thread_;
};

/// The only button of a box that is to be seen.
HWND loneButton(HWND box) {
    HWND button = nullptr;
    do {
        button = FindWindowExW(box, button, L"Button", nullptr);
    } while (button && !IsWindowVisible(button));
    return button;
}

std::function<void(HWND)> whileBoxIsShown;

void CALLBACK onTimer(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = FindWindowW(L"#32770", kTitle);
    if (!box || !IsWindowVisible(box)) return;
    KillTimer(nullptr, timer);
    whileBoxIsShown(box);
    PostMessageW(loneButton(box), BM_CLICK, 0, 0);
}

class WindowsAndBoxes : public testing::Test, private EventSink {
 protected:
    void raise(int, Event) override {}

    std::unique_ptr<Window> makeWindow(HWND& handle) {
        auto window = factory.create({.dialogId = IDD_CONTRACT}, *this);
        handle = ownWindows().front();
        return window;
    }

    void ask(const std::function<void(HWND box)>& meanwhile) {
        whileBoxIsShown = meanwhile;
        SetTimer(nullptr, 0, 10, onTimer);
        EXPECT_EQ(boxes.show({.text = L"Oui ?", .title = kTitle}), MessageBoxes::Answer::Ok);
    }

    WinGateKeeper keeper;
    WinMessageBoxes boxes;
    EventGate gate{keeper, boxes};
    DialogFactory factory{gate};
    HWND first = nullptr;
    HWND second = nullptr;
    std::unique_ptr<Window> firstWindow = makeWindow(first);
    std::unique_ptr<Window> secondWindow = makeWindow(second);
    OtherProgram other;
};

}  // namespace

TEST_F(WindowsAndBoxes, BoxBelongsToTheVisibleWindowUsedLastThoughNoneIsActive) {
    secondWindow->show();
    firstWindow->show();
    firstWindow->hide();
    secondWindow->show();
    firstWindow->show();
    SetActiveWindow(second);
    ASSERT_TRUE(other.comesForward());
    ASSERT_TRUE(eventually([] { return GetActiveWindow() == nullptr; }));
    ask([&](HWND box) {
        EXPECT_EQ(GetWindow(box, GW_OWNER), second);
        EXPECT_FALSE(IsWindowEnabled(first));
        EXPECT_FALSE(IsWindowEnabled(second));
    });
    EXPECT_TRUE(IsWindowEnabled(first));
    EXPECT_TRUE(IsWindowEnabled(second));
}

// Windows sends this to a disabled window that is clicked, and knows the box of its owner only.
TEST_F(WindowsAndBoxes, PressOnADisabledWindowBringsTheBoxForward) {
    firstWindow->show();
    secondWindow->show();
    ask([&](HWND box) {
        ASSERT_TRUE(other.comesForward());
        SendMessageW(first, WM_SETCURSOR, reinterpret_cast<WPARAM>(first),
                     MAKELPARAM(HTERROR, WM_LBUTTONDOWN));
        EXPECT_TRUE(eventually([&] { return GetForegroundWindow() == box; }));
    });
}

TEST_F(WindowsAndBoxes, NoHourglassStandsOverAQuestion) {
    firstWindow->show();
    Hourglass::set(true);
    ask([](HWND) { EXPECT_FALSE(Hourglass::shown()); });
    EXPECT_TRUE(Hourglass::shown());
    Hourglass::set(false);
}

TEST_F(WindowsAndBoxes, ForegroundIsKeptFromOneWindowToTheNext) {
    firstWindow->show();
    ASSERT_TRUE(eventually([&] { return GetForegroundWindow() == first; }));
    firstWindow->hide();
    EXPECT_EQ(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), GetCurrentThreadId());
    secondWindow->show();
    EXPECT_TRUE(eventually([&] { return GetForegroundWindow() == second; }));
}

TEST_F(WindowsAndBoxes, WindowThatIsNotShownYetDoesNotBecomeActive) {
    firstWindow->show();
    ASSERT_TRUE(eventually([&] { return GetActiveWindow() == first; }));
    HWND third = nullptr;
    const auto thirdWindow = makeWindow(third);
    EXPECT_EQ(GetActiveWindow(), first);
    thirdWindow->show();
    EXPECT_TRUE(IsChild(third, GetFocus())) << "shown, it takes the keyboard";
}
