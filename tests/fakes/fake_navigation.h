#pragma once

#include <functional>
#include <string>
#include <vector>

#include "session/navigation.h"

/// Notes which windows are asked for, and makes none.
struct FakeNavigation : Navigation {
    std::vector<std::wstring> asked;
    std::function<void()> whenAsked = [] {};  ///< looks at what stands at that moment

    void ChargerForm1() override { note(L"SelectionWindow"); }
    void ChargerForm2() override { note(L"ExistingListWindow"); }
    void ChargerForm3() override { note(L"TrackingWindow"); }
    void ChargerForm4() override { note(L"ConfigurationWindow"); }
    void ChargerAPropos() override { note(L"APropos"); }
    void FermerAPropos() override { note(L"FermerAPropos"); }

 private:
    void note(const wchar_t* window) {
        asked.push_back(window);
        whenAsked();
    }
};
