#pragma once

#include <string>

#include "rules/late_binding.h"
#include "worklist/list_file.h"

/// The files that the program keeps for its user, by their full paths.
struct ProgramFiles {
    std::wstring directory;       ///< the program's own, without a trailing backslash
    std::wstring list;            ///< the list of the pass; it ends with ".lst", in any case
    std::wstring configurations;  ///< the configurations of search folders

    /// What is left of a list file that was taken away.
    std::wstring previousList() const { return besideList(list, L"-precedente.lst"); }
    /// What others made of the list file before it was saved over.
    std::wstring othersList() const { return besideList(list, L"-autre.lst"); }
    /// The same of the configurations.
    std::wstring othersConfigurations() const { return directory + L"\\tarnwick-precedente.cfg"; }

    /// Says who has a list open, as long as it is.
    static std::wstring holdFileOf(const std::wstring& list) {
        return besideList(list, L".verrou");
    }

    /// Whether a file is one of these, or holds the marks kept of a list: nothing else may be
    /// written there.
    bool owns(const std::wstring& path) const;
};

/// The system's own object for files (Scripting.FileSystemObject).
class FileSystemObject {
 public:
    /// Raises 440 when it can't be created.
    explicit FileSystemObject(Automation& automation);

    bool fileExists(const std::wstring& path);

 private:
    ObjectPtr object_;
};
