#include "input/notifications.h"

#include "input/typed_keys.h"
#include "unit/unit_test.h"

TEST(Notification, StandsForTheEventOfItsControl) {
    using namespace notification;
    const std::tuple<const wchar_t*, unsigned, bool, std::optional<Event>> cases[] = {
        {L"LISTBOX", kListSelectionChanged, true, Event::Click},
        {L"ComboBox", kListDoubleClicked, true, {}},
        {L"Static", kButtonClicked, true, {}},
        // Typing ends only when the focus stays in the window.
        {L"ComboBox", kComboFocusLost, true, Event::Validate},
        {L"ComboBox", kComboFocusLost, false, {}}};
    for (const auto& [name, code, staysInWindow, event] : cases) {
        EXPECT_EQ(eventOf(controlClass(name), code, staysInWindow), event) << name << code;
    }
    EXPECT_EQ(controlClass(L"SysTabControl32"), ControlClass::TabStrip);
}

TEST(DropDown, ActsWhenTheListClosesAndAtOnceWhenItIsNotDown) {
    using namespace notification;
    using Step = DropDown::Step;
    using Notified = std::pair<unsigned, bool>;  // whether the list is down by then
    constexpr Notified kShown{kComboListShown, true}, kArrow{kComboSelectionChanged, true};
    constexpr Notified kClosed{kComboListClosed, false}, kGivenUp{kComboChoiceCancelled, true};
    constexpr Notified kEdited{kComboTextEdited, true}, kChosen{kComboSelectionChanged, false};
    const std::pair<std::vector<Notified>, Step> cases[] = {
        {{kChosen}, Step::Act},
        {{kShown, kArrow}, Step::Nothing},
        {{kShown, kArrow, kArrow, kClosed}, Step::ActLater},
        {{kShown, kArrow, kGivenUp, kClosed}, Step::GoBack},
        {{kShown, kArrow, kGivenUp, kClosed, kShown, kClosed}, Step::Nothing},
        {{kShown, kArrow, kEdited}, Step::Remember},
        {{kShown, kArrow, kEdited, kGivenUp, kClosed}, Step::Nothing},
        // The mouse closes the list before the change is told, or after.
        {{kShown, kClosed, kChosen}, Step::Act}};
    for (const auto& [notifications, last] : cases) {
        DropDown list;
        Step step{};
        for (const auto& [code, isDown] : notifications) step = list.notified(code, isDown);
        EXPECT_EQ(step, last) << notifications.size();
    }
}

TEST(SignKey, IsTheOneThatBearsTheSignOnTheLayoutInUse) {
    // What VkKeyScanEx answers: AZERTY has "-" on the 6 and "+" above "=", QWERTY has two own keys.
    constexpr int kSix = 0x36, kPlus = 0xBB;
    constexpr std::int16_t kAzertyMinus = 0x0036, kPlusAboveEquals = 0x01BB, kNowhere = -1;
    EXPECT_TRUE(pressesSign({.key = kSix, .control = true}, kAzertyMinus));
    EXPECT_FALSE(pressesSign({.key = kSix, .shift = true, .control = true}, kAzertyMinus));
    EXPECT_FALSE(pressesSign({.key = kSix}, kAzertyMinus));
    EXPECT_FALSE(pressesSign({.key = kSix, .control = true, .alt = true}, kAzertyMinus));
    EXPECT_TRUE(pressesSign({.key = kPlus, .shift = true, .control = true}, kPlusAboveEquals));
    EXPECT_FALSE(pressesSign({.key = 0xFF, .control = true}, kNowhere));
    EXPECT_FALSE(pressesSign({.key = kSix, .control = true}, 0x0636)) << "behind AltGr";
}

TEST(FirstLetter, GoesRoundTheLinesThatBeginWithIt) {
    const Texts lines = {L"C:\\", L"  plans", L"    éclatés", L"    Pièces", L""};
    const auto next = [&](wchar_t letter, int from) {
        return lineWithLetter(letter, from, 5,
                              [&](int i) { return lines[static_cast<std::size_t>(i)]; })
            .value_or(-1);
    };
    EXPECT_EQ((std::vector{next(L'p', -1), next(L'p', 1), next(L'P', 3), next(L'É', 2)}),
              (std::vector{1, 3, 1, 2}));
    for (const wchar_t none : {L'z', L' '}) EXPECT_EQ(next(none, 0), -1);
    EXPECT_EQ(lineWithLetter(L'p', -1, 0, nullptr), std::nullopt);
}
