#pragma once

#include <string>

/// What a modal message box shows; the numbers behind are the platform's.
struct MessageBoxContent {
    enum class Buttons { Ok, YesNo };
    enum class Icon { None, Stop };

    std::wstring text;
    std::wstring title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    int defaultButton = 1;       ///< one-based
    std::wstring helpFile = {};  ///< opened by F1, at the given context
    int helpContext = 0;
};

class MessageBoxes {
 public:
    enum class Answer { Ok, Yes, No };

    virtual ~MessageBoxes() = default;

    /// Shows the box, modal to the whole program, until the user answers.
    virtual Answer show(const MessageBoxContent& box) = 0;
};
