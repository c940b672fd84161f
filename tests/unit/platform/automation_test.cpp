#include "platform/automation.h"

#include "fakes/fake_automation.h"
#include "platform/file_system_object.h"
#include "unit/unit_test.h"

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

TEST(FileSystemObject, NamesThePathThatItCouldNotLookUp) {
    FakeAutomation automation;
    automation.fileExists = [](const std::wstring&) -> bool { throw errors::permissionDenied({}); };
    FileSystemObject files(automation);
    EXPECT_EQ(raisedError([&] { files.fileExists(L"s:\\x.cfg"); }).text,
              L"Permission refusée.\r\nFichier : s:\\x.cfg");
}
