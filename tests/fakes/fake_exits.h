#pragma once

#include <functional>

#include "resume/existing_list_window.h"
#include "selection/selection_window.h"

/// Notes which ways out of a window are taken, and takes none.
struct FakeExits : ExistingListExits, SelectionExits {
    std::vector<std::wstring> taken;
    std::function<void()> whenTaken = [] {};  ///< looks at what stands at that moment

    void resumePass() override { note(L"resumePass"); }
    void declineList() override { note(L"declineList"); }
    void closeSplash() override { note(L"closeSplash"); }
    void launchPass() override { note(L"launchPass"); }
    void showConfigurations() override { note(L"showConfigurations"); }
    void showAbout() override { note(L"showAbout"); }

 private:
    void note(const wchar_t* way) {
        taken.push_back(way);
        whenTaken();
    }
};
