#include <gtest/gtest.h>

#include "contract/machine.h"

namespace {

constexpr wchar_t kApplication[] = L"tarnwick contract";

class SettingsContract : public testing::Test {
 protected:
    std::wstring read(const std::wstring& key) {
        return settings.read(kApplication, L"startup", key, L"absent");
    }
    void write(const std::wstring& key, const std::wstring& value) {
        settings.write(kApplication, L"startup", key, value);
    }

    std::unique_ptr<Machine> machine = makeMachine();
    Settings& settings = machine->settings();
};

}  // namespace

TEST_F(SettingsContract, EntryIsReadBackAsItWasWritten) {
    for (const std::wstring& value :
         {std::wstring(L"1416"), std::wstring(L"-30"), std::wstring(), std::wstring(L" é\t\"œ\" "),
          std::wstring(5000, L'9'), std::wstring(L"%PATH%")}) {
        write(L"toppos", value);
        EXPECT_EQ(read(L"toppos"), value);
    }
}

TEST_F(SettingsContract, KeysAreAlikeInAnyCase) {
    EXPECT_EQ(read(L"regcheck"), L"absent");
    write(L"RegCheck", L"1010");
    EXPECT_EQ(read(L"regcheck"), L"1010");
    write(L"regcheck", L"0000");
    EXPECT_EQ(read(L"REGCHECK"), L"0000");
}
