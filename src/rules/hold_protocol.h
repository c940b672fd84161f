#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ports/files.h"
#include "ports/list_holds.h"

/// What became of an attempt to take the file that tells others who has a list open.
enum class HoldFileState {
    Ours,
    Theirs,    ///< another program has it
    Busy,      ///< it is being read or is about to go: to be tried again
    Blocked,   ///< it stands there, nobody's, and can't be written
    Unusable,  ///< nothing can be written there
};

/// What the attempt met, by Windows' error numbers: of creating the file, which shuts out other
/// writers, and, once that has failed, of opening it while others may read but not write.
/// 0: it succeeded.
HoldFileState holdFileState(std::uint32_t creating, std::uint32_t looking);

/// What the machine does for a hold, one step at a time.
class HoldSteps {
 public:
    virtual ~HoldSteps() = default;

    // In this user's session.
    /// Whether this program owns the list now. One program of the session does.
    virtual bool own() = 0;
    /// Brings the owner's window to the front. False while it shows none.
    virtual bool raiseOwner() = 0;

    // Between users and machines.
    virtual HoldFileState takeFile(const ListHolder& us) = 0;
    /// Who has the file, as far as it says so.
    virtual ListHolder fileHolder() = 0;
    /// Whether the file that was taken is still there: a server without its client closes it.
    virtual bool hasFile() = 0;

    /// Lets kHoldPause pass.
    virtual void pause() = 0;
};

inline constexpr int kHoldPause = 50;  ///< milliseconds

/// Takes hold of a list. An owner that shows no window is about to show one, or to end: it is given
/// ten seconds. A file that is ours in another program is given two, for that may just be ending,
/// and so is one that is being read.
HoldAnswer takeHold(HoldSteps& steps, const ListHolder& us);

/// Looks after the file of a hold once that was taken.
class HoldRenewal {
 public:
    /// Takes the file again when it was lost. Who has it instead is returned once; the server may
    /// have us down as its holder a while longer, which counts as nobody.
    std::optional<ListHolder> takeAgain(HoldSteps& steps, const ListHolder& us);

 private:
    std::optional<ListHolder> told_;
};

/// The name by which programs of one session find each other on a list, whatever path each of them
/// was given to it.
std::wstring holdName(const DirectoryId& directory, const std::wstring& list);
