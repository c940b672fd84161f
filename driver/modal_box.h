#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace driver {

/// One of the system's message boxes, shown by another process.
class ModalBox {
 public:
    explicit ModalBox(HWND window) : window_(window) {}

    static bool isOne(HWND window);

    HWND window() const { return window_; }
    std::string title() const;
    std::string text() const;

    /// The ids of its buttons (IDOK, IDYES …), ascending. A lone button is returned as IDOK,
    /// although on Windows its id is IDCANCEL, so that Escape presses it.
    std::vector<int> buttons() const;
    int defaultButton() const;
    bool hasIcon() const;

    /// Presses one of its buttons, a lone one whatever its id, and waits until the box is gone.
    void answer(int button) const;

 private:
    std::vector<HWND> buttonWindows() const;

    HWND window_;
};

}  // namespace driver
