#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <string>

#include "pickers/directory_listing.h"
#include "ports/files.h"

class SearchPatience;
struct SearchServices;
struct TreeDirectory;

/// The directories of a tree, read by several workers ahead of the main thread that walks them.
/// While it waits for one, its window is served. Without workers it reads each one itself.
///
/// On destruction what is still being read is abandoned: a worker that hangs on a server which
/// does not answer keeps what it works on and nothing else.
class ReadAhead {
 public:
    /// Raised by members that wait when the search is to stop.
    struct Interrupted {};

    /// `wanted` is called by several threads at once, and owns all that it looks at.
    ReadAhead(const SearchServices& services, FileFilter wanted, const std::wstring& root,
              bool withSubdirectories);
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    TreeDirectory& root();
    TreeDirectory& subdirectory(TreeDirectory& directory, std::size_t index);

    /// Waits until a directory has been read. Raises 70 or 76 if it can't be, and what the patience
    /// raises.
    void meet(TreeDirectory& directory);
    /// The walk is through with a directory and all below it.
    void leave(TreeDirectory& directory);

    /// Files::identify, with the same patience.
    DirectoryId identify(const std::wstring& directory);

 private:
    struct Desk;

    using Clock = std::chrono::steady_clock;

    void wait(std::unique_lock<std::mutex>& lock);
    void serveNowAndThen();

    std::shared_ptr<Desk> desk_;  ///< shared with the workers
    SearchPatience& patience_;
    Clock::time_point served_ = Clock::now();
};
