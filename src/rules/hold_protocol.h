#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ports/files.h"
#include "ports/list_holds.h"

/// The outcome of an attempt to take the file that tells others who has a list open.
enum class HoldFileState {
    Ours,
    Theirs,    ///< another program has it
    Busy,      ///< it is being read or is about to be deleted: worth another try
    Blocked,   ///< it belongs to nobody, but can't be written
    Unusable,  ///< nothing can be written in its directory
};

/// The outcome by Windows' error numbers, 0 for success: of creating the file, which shuts out
/// other writers, and, if that failed, of opening it in a way that lets others read but not write.
HoldFileState holdFileState(std::uint32_t creating, std::uint32_t looking);

/// What the machine does for a hold, one step at a time.
class HoldSteps {
 public:
    virtual ~HoldSteps() = default;

    // In this user's Windows session.
    /// Whether this program owns the list now. Only one program of the session can.
    virtual bool own() = 0;
    /// Brings the owner's window to the front. False while it shows none.
    virtual bool raiseOwner() = 0;

    // Between users and machines.
    virtual HoldFileState takeFile(const ListHolder& us) = 0;
    /// Who has the file, as far as it says.
    virtual ListHolder fileHolder() = 0;
    /// Whether the file taken is still open: a server that loses its client closes it.
    virtual bool hasFile() = 0;

    /// Waits for kHoldPause.
    virtual void pause() = 0;
};

inline constexpr int kHoldPause = 50;  ///< milliseconds

/// Takes hold of a list. An owner without a window is given ten seconds: it is about to show one,
/// or to end. A file that another program of ours has is given two seconds, since that may just be
/// ending, and so is one that is being read.
HoldAnswer takeHold(HoldSteps& steps, const ListHolder& us);

/// Looks after the file of a hold that was taken.
class HoldRenewal {
 public:
    /// Takes the file again when it was lost. Returns who has it instead, once. For a while the
    /// server may still name us as its holder, which counts as nobody.
    std::optional<ListHolder> takeAgain(HoldSteps& steps, const ListHolder& us);

 private:
    std::optional<ListHolder> told_;
};

/// The name under which programs of one Windows session find out that they work on the same list,
/// whatever path each was given.
std::wstring holdName(const DirectoryId& directory, const std::wstring& list);
