#pragma once

#include <chrono>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "common/runtime_error.h"
#include "pickers/directory_listing.h"
#include "ports/files.h"

class SearchWatch;
struct SearchServices;

/// A directory of a tree that is being walked, and what was read of it. It belongs to its reader
/// until it has been read, and to the walk afterwards.
struct TreeDirectory {
    enum class State { Unread, Reading, Read };

    TreeDirectory* parent;
    std::size_t index;  ///< which of its parent's sub-directories it is
    std::wstring path;

    State state = State::Unread;
    DirectoryContents contents = {};
    std::optional<RuntimeError> error = {};  ///< raised when it was read
    std::vector<std::unique_ptr<TreeDirectory>> below = {};

    // For the plan, until the directory has been read.
    std::list<TreeDirectory*>::iterator place = {};
    /// How many read directories wait between the one before it and this one.
    int waitingBefore = 0;
};

/// Decides which directory of a tree is read next: the one that the walk, which comes behind, will
/// meet first. Links are not read ahead, since the walk may pass them over.
class ReadingPlan {
 public:
    static constexpr int kMostWaiting = 2000;

    ReadingPlan(const std::wstring& root, bool withSubdirectories);

    TreeDirectory& root() { return *root_; }

    /// The directory that the walk waits for, unless it is being read; otherwise, with `ahead`, the
    /// next one to read ahead. Null when there is none, or when the walk should catch up first. The
    /// directory counts as being read from now on.
    TreeDirectory* next(TreeDirectory* awaited, bool ahead = true);

    /// Whether next() would return one.
    bool hasNext(const TreeDirectory* awaited, bool ahead = true) const;

    /// A directory has been read: it waits for the walk, and its sub-directories can be read.
    void finish(TreeDirectory& directory);

    /// The walk has reached a directory that has been read.
    void meet(TreeDirectory& directory);

    /// The sub-directory of a directory that has been read, zero-based.
    TreeDirectory& subdirectory(TreeDirectory& directory, std::size_t index);

    /// The walk has left a directory for good.
    void leave(TreeDirectory& directory);

 private:
    using InOrder = std::list<TreeDirectory*>;

    TreeDirectory* nextAhead() const;
    /// Plans to read a sub-directory before the one at `before`.
    TreeDirectory& plan(TreeDirectory& directory, std::size_t index, InOrder::iterator before);
    int& waitingBefore(InOrder::iterator place);

    std::unique_ptr<TreeDirectory> root_;
    bool withSubdirectories_;
    InOrder toRead_;        ///< those to read and being read, in the walk's order
    int waiting_ = 0;       ///< how many have been read that the walk has not met yet
    int waitingAtEnd_ = 0;  ///< how many of these come after all in `toRead_`
    bool catchingUp_ = false;
};

/// Has workers read the directories of a tree ahead of the main thread that walks it. While that
/// waits for one, its window is served. Without workers it reads each one itself.
///
/// Its destruction abandons what is still being read: a worker that hangs on a server which does
/// not answer keeps alive only what it works on.
class ReadAhead {
 public:
    /// Raised by the waiting members when the search is to stop.
    struct Interrupted {};

    /// `wanted` is called by several threads at once, and owns all that it looks at.
    ReadAhead(const SearchServices& services, FileFilter wanted, const std::wstring& root,
              bool withSubdirectories);
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    TreeDirectory& root();
    TreeDirectory& subdirectory(TreeDirectory& directory, std::size_t index);

    /// Waits until a directory has been read. Raises 70 or 76 if that fails, and what the watch
    /// raises.
    void meet(TreeDirectory& directory);
    /// The walk is through with a directory and all below it.
    void leave(TreeDirectory& directory);

    /// Files::identify, with the same watch.
    DirectoryId identify(const std::wstring& directory);

 private:
    struct Desk;

    using Clock = std::chrono::steady_clock;

    void wait(std::unique_lock<std::mutex>& lock);
    void serveNowAndThen();

    std::shared_ptr<Desk> desk_;  ///< shared with the workers
    SearchWatch& watch_;
    Clock::time_point served_ = Clock::now();
};
