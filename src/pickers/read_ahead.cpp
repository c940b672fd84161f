#include "pickers/read_ahead.h"

#include <iterator>
#include <mutex>
#include <optional>
#include <utility>

#include "pickers/in_parallel.h"
#include "pickers/paths.h"
#include "ports/search.h"

namespace {

bool isUnread(const TreeDirectory* directory) {
    return directory && directory->state == TreeDirectory::State::Unread;
}

}  // namespace

ReadingPlan::ReadingPlan(const std::wstring& root, bool withSubdirectories)
    : root_(std::make_unique<TreeDirectory>(
          TreeDirectory{.parent = nullptr, .index = 0, .path = root})),
      withSubdirectories_(withSubdirectories) {
    root_->place = toRead_.insert(toRead_.end(), root_.get());
}

TreeDirectory* ReadingPlan::nextAhead() const {
    int waiting = 0;
    for (TreeDirectory* directory : toRead_) {
        waiting += directory->waitingBefore;
        // What the walk meets before all that wait is read nevertheless, or the walk would wait.
        if (catchingUp_ && waiting > 0) return nullptr;
        // The few that are being read are passed over.
        if (isUnread(directory)) return directory;
    }
    return nullptr;
}

bool ReadingPlan::hasNext(const TreeDirectory* awaited, bool ahead) const {
    return isUnread(awaited) || (ahead && nextAhead());
}

TreeDirectory* ReadingPlan::next(TreeDirectory* awaited, bool ahead) {
    TreeDirectory* directory = isUnread(awaited) ? awaited : ahead ? nextAhead() : nullptr;
    if (directory) directory->state = TreeDirectory::State::Reading;
    return directory;
}

int& ReadingPlan::waitingBefore(InOrder::iterator place) {
    return place == toRead_.end() ? waitingAtEnd_ : (*place)->waitingBefore;
}

void ReadingPlan::finish(TreeDirectory& directory) {
    directory.state = TreeDirectory::State::Read;
    const std::vector<Subdirectory>& subdirectories = directory.contents.subdirectories;
    directory.below.resize(subdirectories.size());
    const auto behind = std::next(directory.place);
    for (std::size_t i = 0; withSubdirectories_ && i < subdirectories.size(); ++i) {
        if (!subdirectories[i].isLink) plan(directory, i, behind);
    }
    waitingBefore(toRead_.erase(directory.place)) += directory.waitingBefore + 1;
    if (++waiting_ >= kMostWaiting) catchingUp_ = true;
}

void ReadingPlan::meet(TreeDirectory&) {
    // It was the first of those that wait.
    --waitingBefore(toRead_.begin());
    if (--waiting_ <= kMostWaiting / 2) catchingUp_ = false;
}

TreeDirectory& ReadingPlan::plan(TreeDirectory& directory, std::size_t index,
                                 InOrder::iterator before) {
    const std::wstring& name = directory.contents.subdirectories[index].name;
    std::unique_ptr<TreeDirectory>& one = directory.below[index];
    one = std::make_unique<TreeDirectory>(TreeDirectory{
        .parent = &directory, .index = index, .path = childPath(directory.path, name)});
    one->place = toRead_.insert(before, one.get());
    return *one;
}

TreeDirectory& ReadingPlan::subdirectory(TreeDirectory& directory, std::size_t index) {
    const std::unique_ptr<TreeDirectory>& one = directory.below[index];
    // For a link the walk waits, so it comes first.
    return one ? *one : plan(directory, index, toRead_.begin());
}

void ReadingPlan::leave(TreeDirectory& directory) {
    if (directory.parent) directory.parent->below[directory.index].reset();
}

namespace {

/// One more, for what the walk waits for, should all the others hang.
constexpr int kMostWithAwaited = kMostAtOnce + 1;

using Lock = std::unique_lock<std::mutex>;

}  // namespace

/// What the main thread and the workers share. All but the first two members is protected by the
/// mutex.
struct ReadAhead::Desk : std::enable_shared_from_this<ReadAhead::Desk> {
    Files& files;
    FileFilter wanted;

    std::mutex mutex;
    ReadingPlan plan;
    // These two are no longer valid once the walk has ended.
    Workers* workers;
    SearchWatch* watch;
    TreeDirectory* awaited = nullptr;          ///< by the main thread
    int unseen = 0;                            ///< directories read since the walk was woken
    int readers = 0;                           ///< workers that read or are about to
    std::optional<RuntimeError> failure = {};  ///< of the reading as a whole
    bool ended = false;

    Desk(Files& theFiles, FileFilter theWanted, ReadingPlan thePlan, Workers* theWorkers,
         SearchWatch* theWatch)
        : files(theFiles),
          wanted(std::move(theWanted)),
          plan(std::move(thePlan)),
          workers(theWorkers),
          watch(theWatch) {}

    /// Starts one more worker if there is something to read. Each worker starts the next one.
    void callReader() {
        if (ended || readers == kMostWithAwaited) return;
        if (!plan.hasNext(awaited, readers < kMostAtOnce)) return;
        if (workers->start([desk = shared_from_this()] { desk->work(); })) ++readers;
    }

    /// A worker's job: reads until there is nothing left to read. Called without the lock.
    void work() noexcept {
        Lock lock(mutex);
        const auto error = errorOf([&] {
            while (readNext(lock)) {
            }
        });
        --readers;
        if (ended || !error) return;
        failure = error;
        watch->wake();
    }

    /// Reads one directory, without the lock meanwhile. False when there was none to read.
    bool readNext(Lock& lock) {
        TreeDirectory* directory = ended ? nullptr : plan.next(awaited, readers <= kMostAtOnce);
        if (!directory) return false;
        callReader();
        lock.unlock();
        directory->error =
            errorOf([&] { directory->contents = listContents(files, directory->path, wanted); });
        lock.lock();
        if (ended) return false;
        plan.finish(*directory);
        ++unseen;
        wakeWalk();
        return true;
    }

    /// Wakes the walk once for several directories, since they are read faster than a thread wakes
    /// up. When a server is slow, the watch looks by itself before there are so many.
    void wakeWalk() {
        constexpr int kSeveral = 16;
        const bool readIt = awaited && awaited->state == TreeDirectory::State::Read;
        if (!readIt || (unseen < kSeveral && plan.hasNext(awaited))) return;
        unseen = 0;
        watch->wake();
    }
};

ReadAhead::ReadAhead(const SearchServices& services, FileFilter wanted, const std::wstring& root,
                     bool withSubdirectories)
    : desk_(std::make_shared<Desk>(services.files, std::move(wanted),
                                   ReadingPlan(root, withSubdirectories), &services.workers,
                                   &services.watch)),
      watch_(services.watch) {}

ReadAhead::~ReadAhead() {
    const Lock lock(desk_->mutex);
    desk_->ended = true;
}

TreeDirectory& ReadAhead::root() { return desk_->plan.root(); }

TreeDirectory& ReadAhead::subdirectory(TreeDirectory& directory, std::size_t index) {
    const Lock lock(desk_->mutex);
    return desk_->plan.subdirectory(directory, index);
}

void ReadAhead::leave(TreeDirectory& directory) {
    const Lock lock(desk_->mutex);
    desk_->plan.leave(directory);
}

void ReadAhead::meet(TreeDirectory& directory) {
    serveNowAndThen();
    Lock lock(desk_->mutex);
    desk_->awaited = &directory;
    while (directory.state != TreeDirectory::State::Read) {
        desk_->callReader();
        if (desk_->failure) throw *desk_->failure;
        if (desk_->readers == 0) {
            desk_->readNext(lock);
        } else {
            wait(lock);
        }
    }
    desk_->awaited = nullptr;
    desk_->plan.meet(directory);
    desk_->callReader();
    if (directory.error) throw *directory.error;
}

DirectoryId ReadAhead::identify(const std::wstring& directory) {
    const auto id = std::make_shared<DirectoryId>();
    const auto ask = [&files = desk_->files, id, directory](std::size_t) {
        *id = files.identify(directory);
    };
    if (!inParallel({desk_->files, *desk_->workers, watch_}, 1, ask)) throw Interrupted{};
    served_ = Clock::now();
    return *id;
}

void ReadAhead::wait(Lock& lock) {
    lock.unlock();
    const bool goesOn = watch_.wait();
    served_ = Clock::now();
    lock.lock();
    if (!goesOn) throw Interrupted{};
}

void ReadAhead::serveNowAndThen() {
    constexpr std::chrono::milliseconds kInterval(20);
    if (Clock::now() - served_ < kInterval) return;
    if (!watch_.serve()) throw Interrupted{};
    served_ = Clock::now();
}
