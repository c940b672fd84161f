#pragma once

#include <string>

/// The files that the program keeps for its user, by their full paths.
struct ProgramFiles {
    std::wstring directory;       ///< the program's own, without a trailing backslash
    std::wstring list;            ///< the list of the pass
    std::wstring configurations;  ///< the configurations of search folders
};
