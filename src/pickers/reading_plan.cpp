#include "pickers/reading_plan.h"

#include <algorithm>

namespace {

const TreeDirectory* above(const TreeDirectory* directory, int depth) {
    while (directory->depth > depth) directory = directory->parent;
    return directory;
}

}  // namespace

bool isMetBefore(const TreeDirectory* a, const TreeDirectory* b) {
    const int depth = std::min(a->depth, b->depth);
    const TreeDirectory* first = above(a, depth);
    const TreeDirectory* second = above(b, depth);
    if (first == second) return a->depth < b->depth;
    while (first->parent != second->parent) {
        first = first->parent;
        second = second->parent;
    }
    return first->index < second->index;
}

ReadingPlan::ReadingPlan(const std::wstring& root, bool withSubdirectories)
    : root_(std::make_unique<TreeDirectory>(
          TreeDirectory{.parent = nullptr, .index = 0, .depth = 0, .path = root})),
      withSubdirectories_(withSubdirectories) {
    planned_.insert(root_.get());
}

bool ReadingPlan::mayReadAhead() const {
    if (planned_.empty()) return false;
    // What the walk meets before all that wait is read in any case: it must not wait itself.
    return !catchingUp_ || isMetBefore(*planned_.begin(), *waiting_.begin());
}

bool ReadingPlan::hasNext(const TreeDirectory* awaited, bool ahead) const {
    return (awaited && awaited->state == TreeDirectory::State::Unread) || (ahead && mayReadAhead());
}

TreeDirectory* ReadingPlan::next(TreeDirectory* awaited, bool ahead) {
    if (!hasNext(awaited, ahead)) return nullptr;
    const bool isAwaited = awaited && awaited->state == TreeDirectory::State::Unread;
    TreeDirectory* directory = isAwaited ? awaited : *planned_.begin();
    directory->state = TreeDirectory::State::Reading;
    if (planned_.erase(directory) != 0 && directory->parent) {
        planFrom(*directory->parent, directory->index + 1);
    }
    return directory;
}

void ReadingPlan::finish(TreeDirectory& directory) {
    directory.state = TreeDirectory::State::Read;
    waiting_.insert(&directory);
    if (waiting_.size() >= kMostWaiting) catchingUp_ = true;
    directory.below.resize(directory.contents.subdirectories.size());
    if (withSubdirectories_) planFrom(directory, 0);
}

void ReadingPlan::meet(TreeDirectory& directory) {
    waiting_.erase(&directory);
    if (waiting_.size() <= kMostWaiting / 2) catchingUp_ = false;
}

void ReadingPlan::planFrom(TreeDirectory& directory, std::size_t index) {
    const std::vector<Subdirectory>& subdirectories = directory.contents.subdirectories;
    while (index < subdirectories.size() && subdirectories[index].isLink) ++index;
    if (index < subdirectories.size()) planned_.insert(&subdirectory(directory, index));
}

TreeDirectory& ReadingPlan::subdirectory(TreeDirectory& directory, std::size_t index) {
    std::unique_ptr<TreeDirectory>& one = directory.below[index];
    if (!one) {
        const std::wstring& name = directory.contents.subdirectories[index].name;
        one =
            std::make_unique<TreeDirectory>(TreeDirectory{.parent = &directory,
                                                          .index = index,
                                                          .depth = directory.depth + 1,
                                                          .path = childPath(directory.path, name)});
    }
    return *one;
}

void ReadingPlan::leave(TreeDirectory& directory) {
    if (directory.parent) directory.parent->below[directory.index].reset();
}
