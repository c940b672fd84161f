#pragma once

#include <optional>
#include <string>
#include <vector>

/// What is to be saved, and where it would go if the user changed nothing.
struct SaveQuestion {
    std::wstring title;
    std::wstring directory;  ///< without a trailing backslash
    std::wstring name;
    std::wstring kind;       ///< of files, as the user reads it
    std::wstring extension;  ///< without the dot; a name without one is given it
};

/// Files that are shown to choose from, at first those of the first kind.
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

    /// The full path that the user chose, by which an existing file may be replaced; nothing when
    /// the user thought better of it. Raises 51 when there is no such dialog.
    virtual std::optional<std::wstring> askWhereToSave(const SaveQuestion& question) = 0;

    /// The full path of the file, which was there, that the user chose to open; nothing when the
    /// user thought better of it. Raises 51 when there is no such dialog.
    virtual std::optional<std::wstring> askWhatToOpen(const OpenQuestion& question) = 0;
};
