#pragma once

#include <functional>
#include <string>
#include <vector>

#include "session/navigation.h"

/// Notes which windows are asked for, and makes none.
struct FakeNavigation : Navigation {
    std::vector<std::wstring> asked;
    std::function<void()> whenAsked = [] {};  ///< looks at what stands at that moment

    void ChargerForm1() override { note(L"Form1"); }
    void ChargerForm2() override { note(L"Form2"); }
    void ChargerForm3() override { note(L"Form3"); }
    void ChargerForm4() override { note(L"Form4"); }
    void ChargerAPropos() override { note(L"APropos"); }
    void FermerAPropos() override { note(L"FermerAPropos"); }

 private:
    void note(const wchar_t* window) {
        asked.push_back(window);
        whenAsked();
    }
};
