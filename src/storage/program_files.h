#pragma once

#include <string>

#include "rules/late_binding.h"
#include "worklist/list_file.h"

/// The files that the program keeps for its user, by their full paths.
struct ProgramFiles {
    std::wstring directory;       ///< the program's own, without a trailing backslash
    std::wstring list;            ///< the list of the pass; it ends with ".lst", in any case
    std::wstring configurations;  ///< the configurations of search folders

    /// The list that a launch or an erasure has taken away.
    std::wstring previousList() const { return besideList(list, L"-precedente.lst"); }
    /// What others had made of the list file when it was saved over.
    std::wstring othersList() const { return besideList(list, L"-autre.lst"); }
    /// The same for the configurations.
    std::wstring othersConfigurations() const { return directory + L"\\tarnwick-precedente.cfg"; }

    /// The file that says who has a list open, while it is.
    static std::wstring holdFileOf(const std::wstring& list) {
        return besideList(list, L".verrou");
    }

    /// Whether a path is one of these, or that of a list's kept marks: nothing else may be written
    /// there.
    bool owns(const std::wstring& path) const;
};

/// The system's own object about files (Scripting.FileSystemObject).
class FileSystemObject {
 public:
    /// Raises 440 when it can't be created.
    explicit FileSystemObject(Automation& automation);

    bool fileExists(const std::wstring& path);

 private:
    ObjectPtr object_;
};

struct ListHolder;
struct Platform;
struct ProgramFiles;

/// Takes hold of the list file for as long as the program runs. Ends the program when another one
/// of this user has it already, which comes to the front. Tells the user when others can't see the
/// hold. Raises 70 when someone else has the list open, and 70 or 76 when its directory can't be
/// opened.
void takeHoldOfList(Platform& platform, const ProgramFiles& files);

/// Takes the hold again when it was lost, and tells the user when someone else has the list by now.
/// Call it now and then.
void keepHoldOfList(Platform& platform, const ProgramFiles& files);

/// "par Zoé sur PC-12".
std::wstring holderText(const ListHolder& holder);
