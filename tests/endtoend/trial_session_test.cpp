// What the trial session owes the machine that it runs on.

#include <objbase.h>

#include "scenario.h"

namespace {

struct TrialSession : Scenario {
    static bool IsRegistered() {
        CLSID classId;
        return SUCCEEDED(CLSIDFromProgID(L"SldWorks.Application", &classId));
    }

    /// Tries to make a key that stays below the session's own.
    static LSTATUS MakeStableKey() {
        HKEY made = nullptr;
        return RegCreateKeyExW(HKEY_CLASSES_ROOT, L"SldWorks.Application\\Test", 0, nullptr, 0,
                               KEY_READ, nullptr, &made, nullptr);
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
