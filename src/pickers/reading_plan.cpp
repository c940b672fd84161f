#include "pickers/reading_plan.h"

#include <iterator>

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
        // What the walk meets before all that wait is read in any case: it must not wait itself.
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
    if (++waiting_ >= static_cast<int>(kMostWaiting)) catchingUp_ = true;
}

void ReadingPlan::meet(TreeDirectory&) {
    // It was the first of all.
    --waitingBefore(toRead_.begin());
    if (--waiting_ <= static_cast<int>(kMostWaiting / 2)) catchingUp_ = false;
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
    std::unique_ptr<TreeDirectory>& one = directory.below[index];
    // A link, which the walk waits for: it comes before all else.
    return one ? *one : plan(directory, index, toRead_.begin());
}

void ReadingPlan::leave(TreeDirectory& directory) {
    if (directory.parent) directory.parent->below[directory.index].reset();
}
