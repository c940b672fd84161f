#include "platform/notifications.h"

#include <gtest/gtest.h>

TEST(Notification, StandsForTheEventOfItsControl) {
    using namespace notification;
    EXPECT_EQ(eventOf(controlClass(L"Button"), kButtonClicked, true), Event::Click);
    EXPECT_EQ(eventOf(controlClass(L"LISTBOX"), kListSelectionChanged, true), Event::Click);
    EXPECT_EQ(eventOf(controlClass(L"ListBox"), kListDoubleClicked, true), Event::DoubleClick);
    EXPECT_EQ(eventOf(controlClass(L"ComboBox"), kComboSelectionChanged, true), Event::Click);
    EXPECT_EQ(eventOf(controlClass(L"ComboBox"), kComboTextEdited, true), Event::Change);
    EXPECT_EQ(eventOf(controlClass(L"ComboBox"), kListDoubleClicked, true), std::nullopt);
    EXPECT_EQ(eventOf(controlClass(L"Static"), kButtonClicked, true), std::nullopt);
}

TEST(Notification, EndsTypingOnlyWhenTheFocusStaysInTheWindow) {
    using namespace notification;
    EXPECT_EQ(eventOf(ControlClass::ComboBox, kComboFocusLost, true), Event::Validate);
    EXPECT_EQ(eventOf(ControlClass::ComboBox, kComboFocusLost, false), std::nullopt);
}
