#pragma once

#include <optional>
#include <string>
#include <vector>

/// What a modal message box shows. The numbers are those of Windows' own boxes (winuser.h).
struct MessageBoxContent {
    enum class Buttons { Ok = 0, YesNo = 4, RetryCancel = 5 };
    enum class Icon { None = 0, Stop = 0x10, Warning = 0x30 };

    std::wstring text;
    std::wstring title = L"Tarnwick";
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    int defaultButton = 1;       ///< one-based
    std::wstring helpFile = {};  ///< the help reference, of which Windows takes the context alone
    int helpContext = 0;

    bool operator==(const MessageBoxContent&) const = default;
};

class MessageBoxes {
 public:
    /// By the ids of the buttons. A box with one button answers Ok.
    enum class Answer { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7 };

    virtual ~MessageBoxes() = default;

    /// Shows the box, modal to the whole program, until the user answers.
    virtual Answer show(const MessageBoxContent& box) = 0;
    /// A box with a warning sign.
    void warn(const std::wstring& text) {
        show({.text = text, .icon = MessageBoxContent::Icon::Warning});
    }
};

/// What is to be saved, and the place that is proposed to the user.
struct SaveQuestion {
    std::wstring title;
    std::wstring directory;  ///< without a trailing backslash
    std::wstring name;
    std::wstring kind;       ///< of the file, as the user reads it
    std::wstring extension;  ///< without the dot; added to a name that has none
};

/// Which files the user can choose from; at first those of the first kind are shown.
struct OpenQuestion {
    struct Kind {
        std::wstring name;      ///< as the user reads it
        std::wstring patterns;  ///< separated by semicolons
    };

    std::wstring title;
    std::vector<Kind> kinds;
};

/// The system's own dialogs about files.
class FileDialogs {
 public:
    virtual ~FileDialogs() = default;

    /// The full path that the user chose, nothing when they cancelled. An existing file may be
    /// replaced. Raises 51 when there is no such dialog.
    virtual std::optional<std::wstring> askWhereToSave(const SaveQuestion& question) = 0;

    /// The full path of the existing file that the user chose, nothing when they cancelled. Raises
    /// 51 when there is no such dialog.
    virtual std::optional<std::wstring> askWhatToOpen(const OpenQuestion& question) = 0;
};
