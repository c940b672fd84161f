#pragma once

#include <string>

/// What a modal message box shows. The numbers are those of Windows' own boxes (winuser.h).
struct MessageBoxContent {
    enum class Buttons { Ok = 0, YesNo = 4, RetryCancel = 5 };
    enum class Icon { None = 0, Stop = 0x10, Warning = 0x30 };

    std::wstring text;
    std::wstring title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    int defaultButton = 1;       ///< one-based
    std::wstring helpFile = {};  ///< the help reference; Windows takes its context alone
    int helpContext = 0;
};

class MessageBoxes {
 public:
    /// By the ids of the buttons. A box with one button answers Ok.
    enum class Answer { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7 };

    virtual ~MessageBoxes() = default;

    /// Shows the box, modal to the whole program, until the user answers.
    virtual Answer show(const MessageBoxContent& box) = 0;
    /// A box of the program's own with a warning sign.
    void warn(const std::wstring& text) {
        show({.text = text, .title = L"Tarnwick", .icon = MessageBoxContent::Icon::Warning});
    }
};

/// A button's French caption, whatever the language of the system; nullptr: it keeps its own. A
/// lone button has the id of Cancel, but is an OK button.
const wchar_t* frenchCaption(MessageBoxes::Answer button, bool besideRetry);

/// A box's text with no-break blanks inside « » in place of plain ones, at which a line may end.
std::wstring withBoundQuotes(std::wstring text);
