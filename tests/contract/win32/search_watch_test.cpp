// How the program's windows live while the main thread searches.

#include <thread>

#include "contract/win32/real_windows.h"
#include "pickers/tree_walk.h"
#include "win32/files/win_files.h"
#include "win32/window/waiting.h"

/// A server that does not answer until it is told to.
struct SilentFiles : WinFiles {
    // std::binary_semaphore of this library may sleep for ever (GCC bug 104928).
    HANDLE answers = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    void visit(const std::wstring&, const std::function<void(const DirectoryEntry&)>&) override {
        WaitForSingleObject(answers, INFINITE);
    }
};

/// Windows tells a hook all flags of the call that took the message: this one is from COM's loop.
static LRESULT CALLBACK asComTakes(int code, WPARAM wParam, LPARAM lParam) {
    return CallNextHookEx(nullptr, code, wParam | PM_NOYIELD, lParam);
}

struct SearchOnAWindow : RealWindowTest {
    SearchOnAWindow() { window_->show(); }
    ~SearchOnAWindow() override { answer(); }

    /// A command searches until the other thread, which stands for the user, has the server answer
    /// or ends the search.
    void search(const std::function<void()>& user) {
        gate.run([&] {
            const Searching searching(watch_, *this, SearchKind::Documents);
            const std::jthread other(user);
            end_ = walkTree({*files_, workers_, watch_}, L"c:\\", true, noFile,
                            [](const auto&, const auto&) {});
        });
    }
    void answer() { SetEvent(files_->answers); }
    /// The window answers other programs all the while.
    static void expectAnswer() {
        DWORD_PTR answered = 0;
        EXPECT_NE(SendMessageTimeoutW(dialog(), WM_NULL, 0, 0, 0, 60000, &answered), 0);
    }
    static void press(HWND window) {
        for (const UINT mouse : {WM_LBUTTONDOWN, WM_LBUTTONUP}) {
            PostMessageW(window, mouse, 0, MAKELPARAM(3, 3));
        }
    }
    DuringSearch duringSearch(int controlId, Event) const override {
        return controlId == IDC_CONTRACT_TYPED ? DuringSearch::Restart : DuringSearch::Drop;
    }

    const UniqueHook flags_{
        SetWindowsHookExW(WH_GETMESSAGE, asComTakes, nullptr, GetCurrentThreadId())};
    std::optional<WalkEnd> end_;
    SilentFiles* files_ = new SilentFiles;  // its readers may outlive the test
    PoolWorkers workers_;
    WinSearchWatch watch_{judge};
    std::unique_ptr<Window> window_ =
        factory.create({.dialogId = IDD_CONTRACT, .tooltips = {}}, *this);
};

TEST_F(SearchOnAWindow, IsOneStepWhenItTakesNoTime) {
    PostMessageW(item(IDC_CONTRACT_BUTTON), BM_CLICK, 0, 0);
    search([&] { answer(); });
    EXPECT_EQ(end_, WalkEnd::Complete);
    EXPECT_TRUE(raised.empty());
}

TEST_F(SearchOnAWindow, AnswersAndDropsAllButWhatIsTypedOrPressedForANewerOne) {
    // It was not meant for a search that begins later.
    PostMessageW(item(IDC_CONTRACT_BUTTON), WM_KEYDOWN, VK_ESCAPE, 0);
    for (const DWORD posted = GetTickCount(); GetTickCount() < posted + 50;) SwitchToThread();
    search([&] {
        expectAnswer();
        HWND check = item(IDC_CONTRACT_CHECK);
        press(check);
        for (const UINT key : {WM_KEYDOWN, WM_KEYUP}) PostMessageW(check, key, VK_SPACE, 1);
        PostMessageW(item(IDC_CONTRACT_BUTTON), BM_CLICK, 0, 0);
        PostMessageW(item(IDC_CONTRACT_FIELD), WM_CHAR, 'a', 1);
        HWND typed = GetWindow(item(IDC_CONTRACT_TYPED), GW_CHILD);
        for (const WPARAM letter : {'b', 'c'}) PostMessageW(typed, WM_CHAR, letter, 1);
        press(typed);
    });
    EXPECT_EQ(end_, WalkEnd::Interrupted);
    EXPECT_EQ(raised, (RaisedEvents{{IDC_CONTRACT_TYPED, Event::Change}}))
        << "however many letters";
    EXPECT_EQ(GetParent(GetFocus()), item(IDC_CONTRACT_TYPED));
    EXPECT_EQ(IsDlgButtonChecked(dialog(), IDC_CONTRACT_CHECK), BST_UNCHECKED);
    EXPECT_EQ(GetWindowTextLengthW(item(IDC_CONTRACT_FIELD)), 0);
    EXPECT_EQ(GetWindowTextLengthW(item(IDC_CONTRACT_TYPED)), 2);
}

TEST_F(SearchOnAWindow, IsEndedByEscapeOrWithTheProgramByAFrame) {
    search([&] { PostMessageW(item(IDC_CONTRACT_ONE), WM_KEYDOWN, VK_ESCAPE, 1); });
    EXPECT_EQ(end_, WalkEnd::Interrupted);
    EXPECT_FALSE(gate.ended());
    end_.reset();
    search([&] { PostMessageW(dialog(), WM_CLOSE, 0, 0); });
    EXPECT_FALSE(end_);
    EXPECT_TRUE(gate.ended());
    EXPECT_EQ(gate.exitCode(), 0);
    MSG quit;
    EXPECT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

// Windows wants all or none of them, and makes the press that is dropped later.
TEST_F(SearchOnAWindow, LetsMessagesOfTouchThrough) {
    const Searching searching(watch_, *this, SearchKind::Documents);
    PostMessageW(item(IDC_CONTRACT_CHECK), WM_POINTERDOWN, 1, 0);
    MSG taken{};
    PeekMessageW(&taken, item(IDC_CONTRACT_CHECK), WM_POINTERDOWN, WM_POINTERDOWN, PM_REMOVE);
    EXPECT_EQ(taken.message, static_cast<UINT>(WM_POINTERDOWN));
}
