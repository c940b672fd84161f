// How the program's windows and boxes stand to each other while another program is in front, what a
// window owes its controls when its size or the resolution changes, what keys do in it, and what a
// screen reader is told.

#include <thread>

#include "contract/win32/real_windows.h"

constexpr wchar_t kTitle[] = L"Une question";

/// A window of another thread, which is to ours what another program is.
struct OtherProgram {
    OtherProgram() {
        eventually([this] { return window.load() != nullptr; });
    }
    ~OtherProgram() { PostMessageW(window, WM_CLOSE, 0, 0); }

    bool comesForward() {
        SetForegroundWindow(window);
        return eventually([this] { return GetForegroundWindow() == window; });
    }

    std::atomic<HWND> window = nullptr;
    std::jthread thread{[this] {
        window = CreateWindowW(L"Static", L"Autre", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                               100, nullptr, nullptr, nullptr, nullptr);
        MSG next;
        while (IsWindow(window) && GetMessageW(&next, nullptr, 0, 0) > 0) DispatchMessageW(&next);
    }};
};

/// The first window of a class below `parent`, or below none, that is the wanted one.
static HWND findWindow(HWND parent, const wchar_t* className,
                       const std::function<bool(HWND)>& isWanted) {
    HWND window = FindWindowExW(parent, nullptr, className, nullptr);
    while (window && !isWanted(window)) window = FindWindowExW(parent, window, className, nullptr);
    return window;
}

static std::function<void(HWND)> whileBoxIsShown;

static void CALLBACK onTimer(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = FindWindowW(L"#32770", kTitle);
    if (!box || !IsWindowVisible(box)) return;
    KillTimer(nullptr, timer);
    whileBoxIsShown(box);
    PostMessageW(findWindow(box, L"Button", IsWindowVisible), BM_CLICK, 0, 0);
}

constexpr Anchor kWide[] = {{IDC_CONTRACT_TYPED, Growth::Stretch, Growth::Stay}};
constexpr Tooltip kTips[] = {{IDC_CONTRACT_BUTTON, L"Marquer comme FAIT"}};

/// What Windows makes of a combo box that is resized: it takes the line that begins like its text.
static LRESULT CALLBACK completing(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR) {
    const LRESULT result = DefSubclassProc(box, message, wParam, lParam);
    if (message == WM_SIZE) {
        SendMessageW(box, CB_SETCURSEL, 0, 0);
        SendMessageW(box, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    }
    return result;
}

static int labelsReadOut = 0;

static void CALLBACK onLiveRegion(HWINEVENTHOOK, DWORD, HWND label, LONG, LONG, DWORD, DWORD) {
    if (GetDlgCtrlID(label) == IDC_CONTRACT_LABEL) ++labelsReadOut;
}

struct WindowsAndBoxes : RealWindowTest {
    std::unique_ptr<Window> makeWindow(HWND& handle) {
        auto window = factory.create({.dialogId = IDD_CONTRACT,
                                      .tooltips = kTips,
                                      .liveId = IDC_CONTRACT_LABEL,
                                      .anchors = kWide,
                                      .shrinks = {40, 40}},
                                     *this);
        handle = ownWindows().front();
        return window;
    }

    void ask(const std::function<void(HWND box)>& meanwhile) {
        whileBoxIsShown = meanwhile;
        SetTimer(nullptr, 0, 10, onTimer);
        EXPECT_EQ(boxes.show({.text = L"Oui ?", .title = kTitle}), MessageBoxes::Answer::Ok);
    }

    HWND first = nullptr;
    HWND second = nullptr;
    std::unique_ptr<Window> firstWindow = makeWindow(first);
    std::unique_ptr<Window> secondWindow = makeWindow(second);
    OtherProgram other;
};

TEST_F(WindowsAndBoxes, BoxBelongsToTheVisibleWindowUsedLastThoughNoneIsActive) {
    secondWindow->show();
    firstWindow->show();
    SetActiveWindow(second);
    ASSERT_TRUE(other.comesForward());
    ASSERT_TRUE(eventually([] { return GetActiveWindow() == nullptr; }));
    ask([&](HWND box) {
        EXPECT_EQ(GetWindow(box, GW_OWNER), second);
        EXPECT_FALSE(IsWindowEnabled(first) || IsWindowEnabled(second));
    });
    EXPECT_TRUE(IsWindowEnabled(first) && IsWindowEnabled(second));
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

TEST_F(WindowsAndBoxes, ForegroundGoesFromOneShownWindowToTheNext) {
    firstWindow->show();
    ASSERT_TRUE(eventually([&] { return GetForegroundWindow() == first; }));
    firstWindow->hide();
    EXPECT_EQ(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), GetCurrentThreadId());
    secondWindow->show();
    EXPECT_TRUE(eventually([&] { return GetForegroundWindow() == second; }));
    // One that is not shown yet does not become active; shown, it takes the keyboard.
    HWND third = nullptr;
    const auto thirdWindow = makeWindow(third);
    EXPECT_EQ(GetActiveWindow(), second);
    thirdWindow->show();
    EXPECT_TRUE(IsChild(third, GetFocus()));
}

TEST_F(WindowsAndBoxes, AWindowThatIsShownAsideTakesNeitherForegroundNorKeyboard) {
    ASSERT_TRUE(other.comesForward());
    HWND before = GetForegroundWindow();
    firstWindow->progressBar(IDC_CONTRACT_PROGRESS).show(3, 70'000);
    firstWindow->showAside();
    EXPECT_EQ(GetForegroundWindow(), before);
    EXPECT_EQ(GetActiveWindow(), nullptr);
    EXPECT_TRUE(IsWindowVisible(first));
    EXPECT_EQ(SendDlgItemMessageW(first, IDC_CONTRACT_PROGRESS, PBM_GETPOS, 0, 0), 3);
    EXPECT_EQ(SendDlgItemMessageW(first, IDC_CONTRACT_PROGRESS, PBM_GETRANGE, FALSE, 0), 70'000);
}

TEST_F(WindowsAndBoxes, ResizedComboBoxKeepsItsTextAndSelection) {
    HWND box = GetDlgItem(first, IDC_CONTRACT_TYPED);
    SetWindowSubclass(box, completing, 0, 0);
    const std::wstring line = L"*.SLDPRT";
    ComboBox& typed = firstWindow->comboBox(IDC_CONTRACT_TYPED);
    typed.setLines({&line, 1});
    typed.setText(L"*.SLD");
    SendMessageW(box, CB_SETEDITSEL, 0, MAKELPARAM(2, 4));
    const int width = firstWindow->place().width();
    for (const int length : {width + 50, 10}) {
        firstWindow->moveTo({0, 0, length, length});
        EXPECT_EQ(typed.text(), L"*.SLD");
        EXPECT_EQ(typed.selectedLine(), -1);
        EXPECT_EQ(SendMessageW(box, CB_GETEDITSEL, 0, 0), MAKELONG(2, 4));
    }
    EXPECT_LT(firstWindow->place().width(), width) << "smaller than its template";
}

TEST_F(WindowsAndBoxes, ListsAndTooltipsFollowAChangeOfResolution) {
    ListBox& lines = firstWindow->listBox(IDC_CONTRACT_ONE);
    HWND list = GetDlgItem(first, IDC_CONTRACT_ONE);
    HWND tips = findWindow(nullptr, TOOLTIPS_CLASSW,
                           [&](HWND tip) { return GetWindow(tip, GW_OWNER) == first; });
    const auto font = [](HWND window) {
        LOGFONTW made{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof made,
                   &made);
        return made.lfFaceName + std::to_wstring(made.lfHeight);
    };
    const auto extent = [&] { return SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0); };
    lines.setLines(2, [](int i) { return std::wstring(40, i == 0 ? L'i' : L'.'); });
    const LRESULT narrow = extent();
    lines.changeText(1, std::wstring(40, L'W'));
    const LRESULT wide = extent();
    EXPECT_GT(wide, 2 * narrow);

    SendMessageW(list, LB_SETHORIZONTALEXTENT, 1, 0);
    SendMessageW(tips, TTM_SETMAXTIPWIDTH, 0, -1);
    SendMessageW(tips, WM_SETFONT, 0, 0);
    RECT suggested{50, 60, 850, 660};
    SendMessageW(first, WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(firstWindow->place(), (Area{50, 60, 850, 660}));
    EXPECT_EQ(extent(), wide);
    EXPECT_EQ(SendMessageW(tips, TTM_GETMAXTIPWIDTH, 0, 0), MulDiv(400, firstWindow->dpi(), 96));
    EXPECT_EQ(font(tips), font(GetDlgItem(first, IDC_CONTRACT_LABEL)));
}

// Windows tells top-level windows only.
TEST_F(WindowsAndBoxes, ControlsAreToldThatColoursChange) {
    static int told;
    told = 0;
    const auto counting = [](HWND tabs, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                             DWORD_PTR) {
        told += message == WM_SYSCOLORCHANGE;
        return DefSubclassProc(tabs, message, wParam, lParam);
    };
    SetWindowSubclass(GetDlgItem(first, IDC_CONTRACT_TABS), counting, 0, 0);
    SendMessageW(first, WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(told, 1);
}

TEST_F(WindowsAndBoxes, EnterPressesTheFocusedButtonAndADroppedListCountsWhenItCloses) {
    firstWindow->show();
    SetFocus(GetDlgItem(first, IDC_CONTRACT_BUTTON));
    SendMessageW(first, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(std::exchange(raised, {}), (RaisedEvents{{IDC_CONTRACT_BUTTON, Event::Click}}));
    const std::wstring drives[] = {L"c:", L"d:", L"e:"};
    ComboBox& box = firstWindow->comboBox(IDC_CONTRACT_CHOSEN);
    HWND list = GetDlgItem(first, IDC_CONTRACT_CHOSEN);
    box.setLines(drives);
    box.selectLine(0);
    SetFocus(list);
    const auto chooseThirdLine = [&](WPARAM closing) {
        SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
        for (const WPARAM key : {WPARAM{VK_DOWN}, WPARAM{VK_DOWN}, closing}) {
            SendMessageW(list, WM_KEYDOWN, key, 1);
        }
        return box.selectedLine();
    };
    EXPECT_EQ(chooseThirdLine(VK_ESCAPE), 0);
    EXPECT_EQ(chooseThirdLine(VK_RETURN), 2);
    EXPECT_TRUE(eventually([&] { return !raised.empty(); }));
    EXPECT_EQ(raised, (RaisedEvents{{IDC_CONTRACT_CHOSEN, Event::Click}}));
}

TEST_F(WindowsAndBoxes, ALiveLabelIsReadOutWhenItChanges) {
    HWINEVENTHOOK hook =
        SetWinEventHook(EVENT_OBJECT_LIVEREGIONCHANGED, EVENT_OBJECT_LIVEREGIONCHANGED, nullptr,
                        onLiveRegion, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    for (const wchar_t* text : {L"a", L"b", L"b"}) {
        firstWindow->control(IDC_CONTRACT_LABEL).setText(text);
    }
    EXPECT_TRUE(eventually([] { return labelsReadOut >= 2; }));
    EXPECT_EQ(labelsReadOut, 2);
    UnhookWinEvent(hook);
}

TEST_F(WindowsAndBoxes, BoxStandsAboveAWindowThatIsAlwaysVisibleAndUnderNoHourglass) {
    firstWindow->show();
    firstWindow->setTopmost(true);
    const auto isTopmost = [](HWND window) {
        return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    };
    EXPECT_TRUE(isTopmost(first));
    judge.handlerBegins(DuringSearch::Drop);
    const auto pointer = [&] { return pointerIn(judge.situation()); };
    ask([&](HWND box) {
        EXPECT_TRUE(isTopmost(box));
        EXPECT_EQ(pointer(), Pointer::Arrow);
    });
    EXPECT_EQ(pointer(), Pointer::Wait);
    judge.handlerEnds();
    ShowWindow(first, SW_MINIMIZE);
    firstWindow->setTopmost(false);
    EXPECT_FALSE(isTopmost(first));
    EXPECT_TRUE(IsIconic(first));
}

TEST_F(WindowsAndBoxes, APausedListStaysHiddenAndWhereItWasScrolled) {
    ListBox& list = firstWindow->listBox(IDC_CONTRACT_SEVERAL);
    HWND handle = GetDlgItem(first, IDC_CONTRACT_SEVERAL);
    list.setLines(200, [](int i) { return std::to_wstring(i); });
    for (const LRESULT top : {1, 50, 170}) {
        SendMessageW(handle, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
        {
            const DrawingPause pause(list);
            list.changeText(100, L"autre");
            list.changeTexts([&](int i) { return list.line(i) + L"s"; });
            list.clearSelection();
        }
        EXPECT_EQ(SendMessageW(handle, LB_GETTOPINDEX, 0, 0), top);
    }
    list.setVisible(false);
    { const DrawingPause pause(list); }
    EXPECT_FALSE(IsWindowVisible(handle));
}
