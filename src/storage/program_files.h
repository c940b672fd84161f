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

struct ListHolder;
struct Platform;
struct ProgramFiles;

/// Takes hold of the list file for as long as the program runs. Ends the program when this user's
/// own has it already, which then is in front. Tells the user when others can't be told. Raises 70
/// when someone else has the list open, and 70 or 76 when its directory can't be opened.
void takeHoldOfList(Platform& platform, const ProgramFiles& files);

/// To be called now and then: takes the hold again when it was lost, and tells the user when
/// someone else has the list meanwhile.
void keepHoldOfList(Platform& platform, const ProgramFiles& files);

/// "par Zoé sur PC-12".
std::wstring holderText(const ListHolder& holder);
