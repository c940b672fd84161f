#include "platform/automation.h"

#include <gtest/gtest.h>

#include "fakes/fake_automation.h"
#include "unit/raised.h"

TEST(AutomationResult, BecomesTextWhenItIsOneOrEmpty) {
    EXPECT_EQ(textOf(Value(std::wstring(L"12.0"))), L"12.0");
    EXPECT_EQ(textOf(Value()), L"");
    EXPECT_EQ(raised([] { textOf(Value(true)); }), 13);
    EXPECT_EQ(raised([] { textOf(Value(ObjectPtr())); }), 13);
}

TEST(AutomationResult, IsTrueWithAllBitsSetOnly) {
    EXPECT_TRUE(isTrue(true));
    EXPECT_TRUE(isTrue(std::int16_t{-1}));
    EXPECT_TRUE(isTrue(std::int32_t{-1}));
    for (const Value& other : {Value(false), Value(std::int16_t{1}), Value(std::int32_t{1}),
                               Value(), Value(std::wstring(L"True"))}) {
        EXPECT_FALSE(isTrue(other)) << other.index();
    }
}

TEST(AutomationResult, HoldsAnObjectOrNone) {
    CallJournal journal;
    const ObjectPtr object = std::make_shared<FakeObject>(journal);
    EXPECT_EQ(objectOf(object), object);
    EXPECT_EQ(objectOf(Value()), nullptr);
    EXPECT_EQ(objectOf(std::int32_t{1}), nullptr);
}

TEST(EmptyObject, CanNeitherBeCalledNorChanged) {
    EXPECT_EQ(raised([] { callMethod(nullptr, L"GetTitle"); }), 91);
    EXPECT_EQ(raised([] { putProperty(nullptr, L"Visible", true); }), 91);
}
