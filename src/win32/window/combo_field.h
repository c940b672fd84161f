#pragma once

#include <windows.h>

#include <string>

/// While it lives a combo box may be resized: Windows then completes what is typed in its field to
/// a line that begins so, and selects it. Afterwards the field is as it was. Any other control is
/// left alone.
class KeptComboField {
 public:
    explicit KeptComboField(HWND control);
    ~KeptComboField();
    KeptComboField(const KeptComboField&) = delete;
    KeptComboField& operator=(const KeptComboField&) = delete;

 private:
    HWND box_ = nullptr;  ///< null when there is nothing to keep
    LRESULT line_ = 0;
    std::wstring text_;
    DWORD start_ = 0;
    DWORD end_ = 0;
};
