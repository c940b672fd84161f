#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace driver {

/// One of the system's message boxes, shown by another process.
class ModalBox {
 public:
    explicit ModalBox(HWND window) : window_(window) {}

    static bool Is(HWND window);

    std::string Title() const;
    std::string Text() const;

    /// The ids of its buttons (IDOK, IDYES …), ascending. A lone button is IDOK, whatever id the
    /// system gives it: Windows' is IDCANCEL, so that Escape presses it.
    std::vector<int> Buttons() const;
    int DefaultButton() const;
    bool HasIcon() const;

    /// Presses one of its buttons, a lone one whatever its id, and waits until the box has gone.
    void Answer(int button) const;

 private:
    std::vector<HWND> ButtonWindows() const;

    HWND window_;
};

}  // namespace driver
