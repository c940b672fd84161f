#pragma once

#include <string>

#include "worklist/list_file.h"

/// The files that the program keeps for its user, by their full paths.
struct ProgramFiles {
    std::wstring directory;       ///< the program's own, without a trailing backslash
    std::wstring list;            ///< the list of the pass; it ends with ".lst", in any case
    std::wstring configurations;  ///< the configurations of search folders

    /// What is left of a list file that was taken away.
    std::wstring previousList() const { return besideList(list, L"-precedente.lst"); }

    /// Says who has the list open, as long as it is.
    std::wstring holdFile() const { return besideList(list, L".verrou"); }

    /// Whether a file is one of these, or holds the marks kept of the list: nothing else may be
    /// written there.
    bool owns(const std::wstring& path) const;
};
