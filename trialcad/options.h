#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What --busy calls the look-up of names.
inline constexpr std::wstring_view kNameLookUp = L"GetIDsOfNames";

/// How the window's title shows the active document.
enum class TitleStyle { Plain, Bracket, None };

/// One use of --fail, --busy or --delay: the method's name and N or milliseconds.
struct MethodRule {
    std::wstring method;
    std::uint32_t number;
};

/// The options of the command line.
struct Options {
    std::wstring journal;  ///< empty: none is written
    std::wstring workingDirectory;
    std::wstring revision = L"12.0.0";
    std::wstring searchFolders;
    TitleStyle title = TitleStyle::Plain;
    std::vector<MethodRule> fail;
    std::vector<MethodRule> busy;
    std::vector<MethodRule> delay;
    std::wstring documents;  ///< the file that says what single documents do; empty: none
    bool hidden = false;
    bool endingsHidden = false;    ///< titles without the file's extension
    bool processNameOnly = false;  ///< not registered as SldWorks.Application
};

/// Why a command line can't be obeyed, in French.
struct OptionError {
    std::wstring text;
};

/// Reads the arguments after the program's name; throws OptionError.
Options parseOptions(const std::vector<std::wstring>& arguments);
