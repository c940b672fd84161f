#pragma once

#include <string>

/// A failure that ends the program: its number is the exit code, its text a French sentence for the
/// user. It is caught at the event gate, unless a caller can handle it.
struct RuntimeError {
    int number;
    std::wstring text;
    bool sessionLost = false;  ///< the CAD session itself failed, not just one document

    /// Adds a line that says more, such as which document or which file.
    void addLine(const std::wstring& line) { text += L"\r\n" + line; }
    /// Adds where it happened: a line of a file, counted from 1.
    void addPlace(int line, const std::wstring& file);
};

/// The program ends at once and without a message, with exit code 0.
struct ProgramEnd {};

/// The run-time errors that the program raises. Users and other programs rely on their numbers.
namespace errors {
RuntimeError invalidArgument();  ///< 5
RuntimeError unwritableText();   ///< 5, for a text no file can hold
RuntimeError overflow();         ///< 6
RuntimeError outOfMemory();      ///< 7
RuntimeError subscriptOutOfRange(const std::wstring& limit = {});  ///< 9; how much is allowed
RuntimeError typeMismatch(const std::wstring& expected);           ///< 13, "... était attendu"
RuntimeError unexpected();                                         ///< 51, for the unforeseen
RuntimeError system(const std::wstring& what);                     ///< 51, Windows refused it
RuntimeError fileNotFound(const std::wstring& path);               ///< 53
RuntimeError permissionDenied(const std::wstring& path);           ///< 70
RuntimeError fileAccess(const std::wstring& path);                 ///< 75
RuntimeError pathNotFound(const std::wstring& path);               ///< 76
RuntimeError emptyObject();                                        ///< 91
RuntimeError unknownMember(const std::wstring& name);              ///< 438
RuntimeError automation(const std::wstring& description);  ///< 440; empty: a general sentence
}  // namespace errors
