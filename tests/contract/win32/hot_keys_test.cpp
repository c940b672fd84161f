// Keys that act whichever program is in front.

#include "contract/win32/real_windows.h"

constexpr HotKey kKeys[] = {{IDC_CONTRACT_BUTTON, 1, L"Un"}, {IDC_CONTRACT_CHECK, 2, L"Deux"}};

struct HotKeys : RealWindowTest {
    /// Takes a key as another program does; false when it is taken already.
    static bool take(UINT digit) {
        return RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_SHIFT, digit) != FALSE;
    }
    static bool isFree(UINT digit) { return take(digit) && UnregisterHotKey(nullptr, 1); }

    std::unique_ptr<Window> window =
        factory.create({.dialogId = IDD_CONTRACT, .hotKeys = kKeys}, *this);
};

TEST_F(HotKeys, AreTakenAllOrNoneAndActUntilTheyAreReleased) {
    window->showAside();
    ASSERT_TRUE(take('2'));
    EXPECT_EQ(window->takeHotKeys(), Texts{L"Deux"});
    UnregisterHotKey(nullptr, 1);
    EXPECT_TRUE(isFree('1'));
    EXPECT_EQ(window->takeHotKeys(), Texts());
    EXPECT_FALSE(isFree('1'));
    ASSERT_TRUE(eventually([&] { return judge.now() > *judge.situation().worked; }));
    // The second goes down before the first is up.
    constexpr BYTE kPressed[] = {VK_CONTROL, VK_SHIFT, '1', '2'};
    for (const BYTE key : kPressed) keybd_event(key, 0, 0, 0);
    EXPECT_TRUE(eventually([&] { return raised.size() == 2; }));
    EXPECT_FALSE(KillTimer(dialog(), '1')) << "it would run for ever";
    for (const BYTE key : kPressed) keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    EXPECT_EQ(raised, (RaisedEvents{{IDC_CONTRACT_BUTTON, Event::Click},
                                    {IDC_CONTRACT_CHECK, Event::Click}}));
    window->releaseHotKeys();
    EXPECT_TRUE(isFree('1') && isFree('2'));
}
