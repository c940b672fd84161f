#pragma once

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/runtime_error.h"
#include "pickers/directory_listing.h"

/// A directory of a tree that is being walked, and what was read of it. Before it has been read it
/// is its reader's, afterwards the walk's.
struct TreeDirectory {
    enum class State { Unread, Reading, Read };

    TreeDirectory* parent;
    std::size_t index;  ///< which of its parent's sub-directories it is
    std::wstring path;

    State state = State::Unread;
    DirectoryContents contents = {};
    std::optional<RuntimeError> error = {};  ///< raised when it was read
    std::vector<std::unique_ptr<TreeDirectory>> below = {};

    // The plan's own, until it has been read.
    std::list<TreeDirectory*>::iterator place = {};
    int waitingBefore = 0;  ///< directories read, between it and the one before it in the plan
};

/// Which directory of a tree is read next: always the one that the walk, which comes behind, will
/// meet first. Links are not read ahead, since the walk may pass them over.
class ReadingPlan {
 public:
    static constexpr std::size_t kMostWaiting = 2000;

    ReadingPlan(const std::wstring& root, bool withSubdirectories);

    TreeDirectory& root() { return *root_; }

    /// The directory that the walk waits for, if nobody reads it yet, else, if wanted, the next to
    /// be read ahead; null when there is none, or when so many wait for the walk that it shall
    /// catch up first. It counts as being read.
    TreeDirectory* next(TreeDirectory* awaited, bool ahead = true);

    /// Whether next() would give one.
    bool hasNext(const TreeDirectory* awaited, bool ahead = true) const;

    /// A directory has been read: it waits for the walk, and those below it can be read.
    void finish(TreeDirectory& directory);

    /// The walk has come to a directory that has been read.
    void meet(TreeDirectory& directory);

    /// The sub-directory of a directory that has been read, zero-based.
    TreeDirectory& subdirectory(TreeDirectory& directory, std::size_t index);

    /// The walk has left a directory for good.
    void leave(TreeDirectory& directory);

 private:
    using InOrder = std::list<TreeDirectory*>;

    TreeDirectory* nextAhead() const;
    /// Plans to read a sub-directory, before another one.
    TreeDirectory& plan(TreeDirectory& directory, std::size_t index, InOrder::iterator before);
    int& waitingBefore(InOrder::iterator place);

    std::unique_ptr<TreeDirectory> root_;
    bool withSubdirectories_;
    InOrder toRead_;        ///< and being read, each before what the walk meets later
    int waiting_ = 0;       ///< read, and not yet met by the walk
    int waitingAtEnd_ = 0;  ///< those behind all that are to be read
    bool catchingUp_ = false;
};
