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

    /// The ids of its buttons (IDOK, IDYES …), ascending.
    std::vector<int> Buttons() const;
    int DefaultButton() const;
    bool HasIcon() const;

    /// Presses one of its buttons and waits until the box has gone.
    void Answer(int button) const;

 private:
    HWND window_;
};

}  // namespace driver
