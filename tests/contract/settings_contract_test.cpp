#include "contract/machine.h"

TEST(SettingsContract, EntriesAreReadBackByTheirKeyInAnyCase) {
    const auto machine = makeMachine();
    const auto read = [&](const wchar_t* key) {
        return machine->settings().read(L"tarnwick contract", L"startup", key, L"absent");
    };
    EXPECT_EQ(read(L"regcheck"), L"absent");
    for (const std::wstring& value :
         {std::wstring(L"-30"), std::wstring(), std::wstring(L" é\t\"œ\" "),
          std::wstring(5000, L'9'), std::wstring(L"%PATH%")}) {
        machine->settings().write(L"tarnwick contract", L"startup", L"RegCheck", value);
        EXPECT_EQ(read(L"regcheck"), value);
    }
}
