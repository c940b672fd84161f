#pragma once

#include "platform/automation.h"
#include "platform/win32/com/late_bound_object.h"

/// Objects of other programs, through COM. Lives between CoInitialize and CoUninitialize.
class WinAutomation : public Automation {
 public:
    explicit WinAutomation(Patience& patience) : binding_{patience} {}

    ObjectPtr attach(const std::wstring& progId) override;
    ObjectPtr create(const std::wstring& progId) override;

 private:
    LateBinding binding_;
};
