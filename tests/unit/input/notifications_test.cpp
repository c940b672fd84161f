#include "input/notifications.h"

#include <initializer_list>

#include "input/typed_keys.h"
#include "unit/unit_test.h"

TEST(Notification, StandsForTheEventOfItsControl) {
    using namespace notification;
    EXPECT_EQ(eventOf(controlClass(L"Button"), kButtonClicked, true), Event::Click);
    EXPECT_EQ(eventOf(controlClass(L"LISTBOX"), kListSelectionChanged, true), Event::Click);
    EXPECT_EQ(eventOf(controlClass(L"ListBox"), kListDoubleClicked, true), Event::DoubleClick);
    EXPECT_EQ(eventOf(controlClass(L"ComboBox"), kComboTextEdited, true), Event::Change);
    EXPECT_EQ(eventOf(controlClass(L"ComboBox"), kListDoubleClicked, true), std::nullopt);
    EXPECT_EQ(controlClass(L"SysTabControl32"), ControlClass::TabStrip);
    EXPECT_EQ(eventOf(controlClass(L"Static"), kButtonClicked, true), std::nullopt);
    // Typing ends only when the focus stays in the window.
    EXPECT_EQ(eventOf(ControlClass::ComboBox, kComboFocusLost, true), Event::Validate);
    EXPECT_EQ(eventOf(ControlClass::ComboBox, kComboFocusLost, false), std::nullopt);
}

TEST(DropDown, ActsWhenTheListClosesAndAtOnceWhenItIsNotDown) {
    using namespace notification;
    using Step = DropDown::Step;
    struct Notified {
        unsigned code;
        bool isDown;
    };
    const auto lastStep = [](std::initializer_list<Notified> notifications) {
        DropDown list;
        Step step{};
        for (const auto& [code, isDown] : notifications) step = list.notified(code, isDown);
        return step;
    };
    constexpr Notified kShown{kComboListShown, true};
    constexpr Notified kArrow{kComboSelectionChanged, true};
    constexpr Notified kClosed{kComboListClosed, false};
    constexpr Notified kGivenUp{kComboChoiceCancelled, true};
    EXPECT_EQ(lastStep({{kComboSelectionChanged, false}}), Step::Act);
    EXPECT_EQ(lastStep({kShown, kArrow}), Step::Nothing);
    EXPECT_EQ(lastStep({kShown, kArrow, kArrow, kClosed}), Step::ActLater);
    EXPECT_EQ(lastStep({kShown, kArrow, kGivenUp, kClosed}), Step::GoBack);
    EXPECT_EQ(lastStep({kShown, kArrow, kGivenUp, kClosed, kShown, kClosed}), Step::Nothing);
    EXPECT_EQ(lastStep({kShown, kArrow, {kComboTextEdited, true}}), Step::Remember);
    EXPECT_EQ(lastStep({kShown, kArrow, {kComboTextEdited, true}, kGivenUp, kClosed}),
              Step::Nothing);
    // The mouse closes the list before the change is told, or after.
    EXPECT_EQ(lastStep({kShown, kClosed, {kComboSelectionChanged, false}}), Step::Act);
}

TEST(SignKey, IsTheOneThatBearsTheSignOnTheLayoutInUse) {
    // What VkKeyScanEx answers: AZERTY has "-" on the 6 and "+" above "=", QWERTY has two own keys.
    constexpr int kSix = 0x36;
    constexpr int kPlus = 0xBB;
    constexpr std::int16_t kAzertyMinus = 0x0036;
    constexpr std::int16_t kPlusAboveEquals = 0x01BB;
    constexpr std::int16_t kNowhere = -1;
    EXPECT_TRUE(pressesSign({.key = kSix, .control = true}, kAzertyMinus));
    EXPECT_FALSE(pressesSign({.key = kSix, .shift = true, .control = true}, kAzertyMinus));
    EXPECT_FALSE(pressesSign({.key = kSix}, kAzertyMinus));
    EXPECT_FALSE(pressesSign({.key = kSix, .control = true, .alt = true}, kAzertyMinus));
    EXPECT_TRUE(pressesSign({.key = kPlus, .shift = true, .control = true}, kPlusAboveEquals));
    EXPECT_FALSE(pressesSign({.key = 0xFF, .control = true}, kNowhere));
}

TEST(FirstLetter, GoesRoundTheLinesThatBeginWithIt) {
    const Texts lines = {L"C:\\", L"  plans", L"    éclatés", L"    Pièces", L""};
    const auto next = [&](wchar_t letter, int from) {
        return lineWithLetter(letter, from, 5,
                              [&](int i) { return lines[static_cast<std::size_t>(i)]; })
            .value_or(-1);
    };
    EXPECT_EQ(next(L'p', -1), 1);
    EXPECT_EQ(next(L'p', 1), 3);
    EXPECT_EQ(next(L'P', 3), 1);
    EXPECT_EQ(next(L'É', 2), 2);
    EXPECT_EQ(next(L'z', 0), -1);
    EXPECT_EQ(next(L' ', 0), -1);
    EXPECT_EQ(lineWithLetter(L'p', -1, 0, nullptr), std::nullopt);
}
