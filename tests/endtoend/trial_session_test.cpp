// What the trial session owes the machine that it runs on.

#include <objbase.h>

#include "scenario.h"

namespace {

constexpr wchar_t kName[] = L"SldWorks.Application";

class TrialSession : public Scenario {
 protected:
    static bool IsRegistered() {
        CLSID classId;
        return SUCCEEDED(CLSIDFromProgID(kName, &classId));
    }

    /// Tries to make a key that stays below the session's own.
    static LSTATUS MakeStableKey() {
        HKEY name = nullptr;
        HKEY made = nullptr;
        RegOpenKeyExW(HKEY_CLASSES_ROOT, kName, 0, KEY_CREATE_SUB_KEY, &name);
        const LSTATUS result =
            RegCreateKeyExW(name, L"Test", 0, nullptr, 0, KEY_READ, nullptr, &made, nullptr);
        RegCloseKey(made);
        RegCloseKey(name);
        return result;
    }
};

TEST_F(TrialSession, LeavesNoClassBehind) {
    cad.Start({"--hidden"});
    cad.Close();
    ASSERT_FALSE(IsRegistered());

    cad.Start({"--hidden"});
    EXPECT_TRUE(IsRegistered());
    EXPECT_EQ(MakeStableKey(), ERROR_CHILD_MUST_BE_VOLATILE);

    Send(cad.Window(), WM_ENDSESSION, FALSE);
    EXPECT_TRUE(IsRegistered());
    Send(cad.Window(), WM_ENDSESSION, TRUE);
    EXPECT_FALSE(IsRegistered());
    cad.Close();
}

}  // namespace
