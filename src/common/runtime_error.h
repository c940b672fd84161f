#pragma once

#include <string>

/// A failure that ends the program: its number is the exit code, its text a French sentence for
/// the user. Caught in one place only, where the platform calls a handler.
struct RuntimeError {
    int number;
    std::wstring text;
    bool sessionLost = false;  ///< the CAD session itself failed, rather than one document

    /// Adds a line that tells more: which document, which file.
    void addLine(const std::wstring& line) { text += L"\r\n" + line; }
    /// Adds where it was met: a line of a file, counted from 1.
    void addPlace(int line, const std::wstring& file);
};

/// The program ends at once and without a message, with exit code 0.
struct ProgramEnd {};

/// The run-time errors that rules of the program raise. Their numbers are part of the interface.
namespace errors {
RuntimeError invalidArgument();  ///< 5
RuntimeError unwritableText();   ///< 5, for a text no file can hold
RuntimeError overflow();         ///< 6
RuntimeError outOfMemory();      ///< 7
RuntimeError subscriptOutOfRange(const std::wstring& limit = {});  ///< 9; what there is room for
RuntimeError typeMismatch(const std::wstring& expected);           ///< 13, "... était attendu"
RuntimeError unexpected();                                 ///< 51, for what nobody thought of
RuntimeError system(const std::wstring& what);             ///< 51, Windows gave nothing
RuntimeError fileNotFound(const std::wstring& path);       ///< 53
RuntimeError permissionDenied(const std::wstring& path);   ///< 70
RuntimeError fileAccess(const std::wstring& path);         ///< 75
RuntimeError pathNotFound(const std::wstring& path);       ///< 76
RuntimeError emptyObject();                                ///< 91
RuntimeError unknownMember(const std::wstring& name);      ///< 438
RuntimeError automation(const std::wstring& description);  ///< 440; empty: a general sentence
}  // namespace errors
